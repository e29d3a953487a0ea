#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "common/run_time_error.h"
#include "controls/desktop.h"
#include "controls/number_field.h"

namespace engine {

/// What the adding machine works on: its boxes, keys and menu items.
struct EngineControls {
  controls::Desktop& desktop;
  controls::TextBox& txtEntry;
  controls::TextBox& txtTape;
  controls::TextBox& txtDec;
  controls::ToggleButton& chkFloatingDec;
  controls::ToggleButton& chkShiftDec;
  controls::ToggleButton& chkTapeOff;
  controls::Button& cmdMemPlus;
  controls::MenuItem& mnuEditFloatingDecimal;
  controls::MenuItem& mnuEditStationaryDecimal;
  controls::MenuItem& mnuWinModes;
  controls::MenuItem& mnuWinPadTape;
  controls::MenuItem& mnuWinTapeOff;
};

inline constexpr int kAddMode = 0;
inline constexpr int kCalculatorMode = 1;

/// The adding machine: its state, and what each of its keys does to it. It is given its controls
/// and never knows whether they are on a screen.
class Engine {
 public:
  explicit Engine(const EngineControls& controls) : c_(controls), field_(controls.txtEntry) {}

  /// Adds the entry, or takes it off. In add mode a total just shown is not taken again: the last
  /// amount is repeated. In calculator mode the operator waits for the next entry.
  void cmdPlus_Click();
  void cmdMinus_Click();
  /// In add mode the entry is added first, and the next one multiplies or divides it; the window
  /// calculates until the next total.
  void cmdTimes_Click();
  void cmdDivide_Click();
  /// Prints the total. An entry that add mode has not been told to add or take off is asked for.
  void cmdEquals_Click();
  /// A hundredth of the entry; ends the one calculation of add mode.
  void cmdPercent_Click();
  /// Prints the entry and its root, once an open calculation is closed.
  void cmdSquareRoot_Click();
  void cmdChangeSign_Click();

  /// CEntry, CTotal, CTape and CAll. None of them clears the memory.
  void cmdClearCurrent_Click();
  void cmdClearCalc_Click();
  void cmdClearTape_Click();
  void cmdClearAll_Click();

  /// M +, MS, MR and MC. None of them prints or changes the total.
  void cmdMemPlus_Click();
  void cmdMemStore_Click();
  void cmdMemRecall_Click();
  void cmdMemClear_Click();

  /// The digit `index`, the point and Backspace, typed into the entry box as on the keyboard.
  void cmdNumber_Click(int index);
  void cmdPeriod_Click();
  void cmdArrow_Click();

  /// The toggles have changed: their menu items, and what they enable, follow.
  void chkFloatingDec_Click();
  void chkShiftDec_Click();
  void chkTapeOff_Click();

  /// Runs an operator key, or judges a character; sets `key` to 0 when it is not to be typed.
  void txtEntry_KeyPress(controls::KeyAscii& key);
  /// Puts the entry in shape, unless the key just moved the caret.
  void txtEntry_KeyUp(controls::KeyCode key);
  void txtEntry_Change(controls::ChangedBy by);
  /// What the mouse has pasted must be a number, with what stood there; any other edit of its own
  /// is as one by keyboard.
  void txtEntry_MouseUp(controls::MouseEdit edit);
  /// The clipboard's text in the place of the whole entry; nothing when the clipboard has none.
  void PasteEntry(const std::optional<std::string>& text);
  /// Puts the entry in shape after an edit of the user's.
  void TidyEntry();

  /// kAddMode or kCalculatorMode. In the one calculation that x or / start in add mode the machine
  /// calculates; the mode that the user chose is add mode.
  int chosenMode() const { return mblnTempCalc ? kAddMode : mintMode; }
  /// The mode as it was stored, kept until the mode switch applies it.
  void restoreMode(int mode) { mintMode = mode; }
  int restoredMode() const { return mintMode; }
  /// The mode switch: the running total begins anew.
  void ChooseMode(int mode);

  /// "Error:", its number and its description, in a message box; of an error that a fresh window
  /// would not have, the advice to open one.
  void ShowError(const common::RunTimeError& error);

 private:
  bool PostWith(std::string_view key);
  void StartProduct(std::string_view key);
  bool Total();
  bool TakeSquareRoot();
  void ClearCalculation();
  bool ApplyOperator();
  void Accumulate(double entry);
  void Calculate();
  double Result(double entry) const;
  void CheckRange();
  bool ProcessEntry();
  void EndCalculation();
  bool EntryIsTyped() const;
  void AskForPlusOrMinus();
  void PrintTotal();
  void PrintShown();

  void FormatEntry();
  std::string FormattedEntry(std::string text);
  void ReformatEntry();
  void SettleEntry();
  bool HasSign(const std::string& text) const;
  void RepairSign();
  void DropSignOfZero();
  /// Shows a number that was not keyed digit by digit.
  void ShowValue(const std::string& text);
  void TakePasted(std::string text);
  std::string TrimPasted(std::string text) const;
  void StoreInMemory(double base);

  void PostToTape();
  void PostError();
  void AppendToTape(const std::string& lines);

  bool RunKey(controls::KeyAscii key);
  bool AcceptsCharacter(controls::KeyAscii key);
  bool AcceptsPoint(const std::string& text) const;
  bool AcceptsDigit(const std::string& text) const;

  bool floatingDecimal() const { return c_.chkFloatingDec.value() == 1; }
  bool stationaryDecimal() const { return !floatingDecimal() && c_.chkShiftDec.value() == 1; }
  bool addMode() const { return mintMode == kAddMode; }
  /// The number of decimal places: the decimals box when it holds one digit, else 0.
  int places() const;
  bool entryIsBlank() const;
  void focusEntryAtEnd();

  EngineControls c_;
  controls::NumberField field_;

  double mdblTotal = 0;
  double mdblMemory = 0;
  double mdblLastEntry = 0;
  std::string mstrTapeOp = "*";
  std::string mstrKey;
  std::string mstrPendingOp;
  std::string mstrErrText;
  int mintMode = kCalculatorMode;
  bool mblnTempCalc = false;
  bool mblnDecKeyed = false;
  bool mblnShowingResult = false;
  bool mblnPosted = false;
  bool mblnNewCalc = true;
  /// The entry was not keyed digit by digit: stationary decimal does not scale it.
  bool mblnValue = false;
};

}  // namespace engine
