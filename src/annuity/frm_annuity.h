#pragma once

#include <array>
#include <memory>
#include <string>

#include "annuity/configurations.h"
#include "annuity/problem.h"
#include "controls/desktop.h"

namespace annuity {

/// What the financial calculator asks of the program around it.
class Program {
 public:
  virtual ~Program() = default;
  /// The place of the main window, which is loaded.
  virtual controls::Rect mainWindowPlace() const = 0;
  /// The main window is loaded, and has been shown.
  virtual bool mainWindowIsUp() const = 0;
  /// The background of the text box that has the focus.
  virtual controls::Color focusColor() const = 0;
  virtual std::string helpFile() const = 0;
  /// Shows the main window, loading it where it is not loaded.
  virtual void showMainWindow() = 0;
  /// Appends lines to the tape of the main window and makes that window `width` wide. It is loaded,
  /// but not shown, where it is not loaded.
  virtual void printToTape(const std::string& lines, controls::Twips width) = 0;
  /// The financial calculator goes, once the running handler has ended.
  virtual void unloadAnnuity() = 0;
};

/// The financial calculator: of term, rate, payment, present and future value the user leaves one
/// blank, and it computes that one.
class frmAnnuity {
 public:
  frmAnnuity(controls::Desktop& desktop, Program& program);
  frmAnnuity(const frmAnnuity&) = delete;
  frmAnnuity& operator=(const frmAnnuity&) = delete;

  controls::Window& window() { return *window_; }
  /// Prepares the window for one kind of problem, with its note in front, and restores its place
  /// and its fields.
  void load(common::AnnuityKind kind);
  void show() { window_->show(); }
  /// Saves its place and its fields, and goes. At any moment: what has not been restored yet stays
  /// as it was stored.
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
  std::array<controls::OptionButton*, 2> optNper;
  controls::OptionButton& optDueAtBeginning;
  controls::Button& cmdPrintToTape;
  controls::Control& lblResultType;
  controls::Control& lblAnswer;

  /// The configuration that shows; none before the window is loaded.
  const Configuration* showing_ = nullptr;
  /// Its place and fields are those that were stored, or what the user has made of them.
  bool restored_ = false;
};

}  // namespace annuity
