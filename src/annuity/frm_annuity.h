#pragma once

#include <memory>
#include <string>

#include "annuity/configurations.h"
#include "annuity/problem.h"
#include "controls/desktop.h"

namespace annuity {

/// What the financial calculator needs from the application.
class Program {
 public:
  virtual ~Program() = default;
  /// The bounds of the main window, which must be loaded.
  virtual controls::Rect mainWindowPlace() const = 0;
  /// Whether the main window is loaded and has been shown.
  virtual bool mainWindowIsUp() const = 0;
  /// The background of the focused text box.
  virtual controls::Color focusColor() const = 0;
  virtual std::string helpFile() const = 0;
  /// Shows the main window; loads it if necessary.
  virtual void showMainWindow() = 0;
  /// Appends lines to the tape of the main window, and sets the width of that window. Loads it if
  /// necessary, but does not show it.
  virtual void printToTape(const std::string& lines, controls::Twips width) = 0;
  /// Closes the financial calculator when the current event has ended.
  virtual void unloadAnnuity() = 0;
};

/// The financial calculator: of term, rate, payment, present value and future value the user leaves
/// one blank, and the window computes it.
class frmAnnuity {
 public:
  frmAnnuity(controls::Desktop& desktop, Program& program);
  frmAnnuity(const frmAnnuity&) = delete;
  frmAnnuity& operator=(const frmAnnuity&) = delete;

  controls::Window& window() { return *window_; }
  /// Prepares the window for one kind of problem: shows the note, restores position and fields.
  void load(common::AnnuityKind kind);
  void show() { window_->show(); }
  /// Saves position and fields, and closes the window. May be called at any moment: settings that
  /// have not been restored yet are not overwritten.
  void unload();

 private:
  void wireFields();
  void wireMoneyField(controls::TextBox& field);
  void wireButtons();
  void writeCaptions();

  void restorePlace(const controls::Rect& main);
  void restoreFields();
  void save();

  void applyConfiguration(const Configuration& configuration);
  void showNote();

  void calculate();
  AnnuityProblem problem() const;
  void showAnswer(const Answer& answer);
  void showRefusal(Refusal refusal);
  void reportError(const common::RunTimeError& error);
  void clearAll();
  void showHelp();

  void enterField(controls::TextBox& field);
  void takeKey(controls::TextBox& field, controls::KeyAscii& key);
  bool takeEnterAsTab(controls::KeyAscii& key);
  void takePaste(std::string& text);
  void withdrawPrint();

  void print();
  std::string record() const;

  controls::Desktop& desktop_;
  Program& program_;
  std::unique_ptr<controls::Window> window_;
  PerQuantity<controls::TextBox*> fields_;
  controls::OptionButton& optTermInMonths;
  controls::OptionButton& optTermInYears;
  controls::OptionButton& optDueAtBeginning;
  controls::Button& cmdPrintToTape;
  controls::Control& lblResultType;
  controls::Control& lblAnswer;

  /// The present configuration; null until the window is loaded.
  const Configuration* showing_ = nullptr;
  /// Whether the position and the fields have been restored.
  bool restored_ = false;
};

}  // namespace annuity
