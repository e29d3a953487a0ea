#pragma once

#include <functional>
#include <string>

#include "common/annuity_kind.h"
#include "controls/color.h"

namespace shell {

/// The background of the text box that has the focus, until the user chooses another.
inline constexpr controls::Color kDefaultFocusColor = controls::Color::rgb(16777088);

/// What the main window asks of the program around it.
class Program {
 public:
  virtual ~Program() = default;
  /// Opens the financial calculator again, for one kind of problem.
  virtual void openFinancialCalc(common::AnnuityKind kind) = 0;
  /// Shows the About box in front of everything; `closed` runs when it has been closed.
  virtual void showAbout(std::function<void()> closed) = 0;
  /// The main window goes, once the running handler has ended.
  virtual void unloadCalc() = 0;

  /// The background of the text box that has the focus, in every window.
  virtual controls::Color focusColor() const = 0;
  virtual void setFocusColor(controls::Color color) = 0;
  virtual std::string helpFile() const = 0;
};

}  // namespace shell
