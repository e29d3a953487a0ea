#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "annuity/configurations.h"
#include "common/run_time_error.h"
#include "controls/desktop.h"
#include "shell/globals.h"

namespace annuity {

/// What the financial calculator asks of the program around it.
class Program {
 public:
  virtual ~Program() = default;
  /// The place of the main window, which is loaded.
  virtual controls::Rect mainWindowPlace() const = 0;
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
  frmAnnuity(controls::Desktop& desktop, const shell::Globals& globals, Program& program);
  frmAnnuity(const frmAnnuity&) = delete;
  frmAnnuity& operator=(const frmAnnuity&) = delete;

  controls::Window& window() { return *window_; }
  void show() { window_->show(); }
  /// Saves its place and its fields, and goes.
  void unload();

 private:
  void wireFields();
  void wireButtons();

  void Form_Load();
  void RestorePlace();
  void RestoreFields();
  void Form_Unload();
  void cmdClearAll_Click();
  void cmdHelp_Click();

  void cmdRotateLabels_Click();
  void ShowNote(const Configuration& configuration);
  const Configuration& showing() const { return configurationBefore(mintNextConfig); }

  void cmdCalculate_Click();
  void Calculate();
  void CalcFutureValue();
  void SolveFutureValue();
  void SolvePayment();
  void SolveRate();
  void SolveTerm();
  void SolvePresentValue();
  void ReportAnnuityError(const common::RunTimeError& error);
  int blankFields() const;
  bool zeroWhenBlank(controls::TextBox& field);
  double monthlyRate() const;
  double months() const;
  void showAnswer(std::string_view answer, std::string_view resultType);
  void showMessage(std::string_view text);

  void Field_GotFocus(controls::TextBox& field);
  void Field_KeyPress(controls::TextBox& field, controls::KeyAscii& key);
  void MoneyField_KeyPress(controls::TextBox& field, controls::KeyAscii& key);
  void MoneyField_KeyUp(controls::TextBox& field, controls::KeyCode key);
  bool EnterAsTab(controls::KeyAscii& key);
  void optDue_Click(int index);
  void WithdrawPrint();

  void cmdPrintToTape_Click();
  std::string record() const;

  controls::Desktop& desktop_;
  const shell::Globals& globals_;
  Program& program_;
  std::unique_ptr<controls::Window> window_;

  controls::TextBox& txtNper;
  controls::TextBox& txtRate;
  controls::TextBox& txtPmt;
  controls::TextBox& txtPV;
  controls::TextBox& txtFV;
  std::array<controls::OptionButton*, 2> optNper;
  controls::Button& cmdPrintToTape;
  controls::Control& lblResultType;
  controls::Control& lblAnswer;

  /// The code of the configuration that the next rotation applies; 0 before the first.
  std::int16_t mintNextConfig = 0;
  float msngSignPV = 0;
  float msngSignPmt = 0;
  float msngSignFV = 0;
  std::int16_t mintDueBegin = 0;
};

}  // namespace annuity
