#pragma once

#include <functional>
#include <string>

#include "common/annuity_kind.h"
#include "controls/color.h"

namespace shell {

/// The default background of the focused text box.
inline constexpr controls::Color kDefaultFocusColor = controls::Color::rgb(16777088);

/// What the main window asks of the program around it.
class Program {
 public:
  virtual ~Program() = default;
  /// Opens the financial calculator for one kind of problem; closes one that is open.
  virtual void openFinancialCalc(common::AnnuityKind kind) = 0;
  /// Shows the About box as a modal dialog; `closed` runs when it has been closed.
  virtual void showAbout(std::function<void()> closed) = 0;
  /// Closes the main window when the current event has ended.
  virtual void unloadCalc() = 0;

  /// The background of the focused text box in every window.
  virtual controls::Color focusColor() const = 0;
  virtual void setFocusColor(controls::Color color) = 0;
  virtual std::string helpFile() const = 0;
};

}  // namespace shell
