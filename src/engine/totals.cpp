#include "common/number_text.h"
#include "engine/engine.h"

namespace engine {

void Engine::cmdEquals_Click() {
  Total();
  c_.txtEntry.setFocus();
}

// The total key. False when it failed or had nothing to do.
bool Engine::Total() {
  SettleEntry();
  if (entryIsBlank()) {
    c_.txtEntry.setText("");
    return false;
  }
  if (addMode() && !mblnPosted) {
    AskForPlusOrMinus();
    return false;
  }
  if (EntryIsTyped()) {
    // Only in calculator mode: in add mode plus or minus has taken it, or was asked for.
    if (!ApplyOperator()) return false;
    PostToTape();
    PrintTotal();
  } else {
    PrintShown();
  }
  FormatEntry();
  c_.txtEntry.moveCaretToEnd();
  mstrPendingOp.clear();
  if (mblnTempCalc) {
    mintMode = kAddMode;
    mdblTotal = 0;
    mblnTempCalc = false;
  }
  return true;
}

void Engine::AskForPlusOrMinus() {
  c_.desktop.showMessage(
      {.text = "Since you are in \"Add Mode\" you must first hit the plus or minus key for the "
               "current entry which is " +
               c_.txtEntry.text() +
               ".  If you do not want the current entry then enter zero and click plus and then "
               "click equals."});
  c_.desktop.beep();
}

// The zero that a total or C&Total leaves in the box was not typed, though nobody has posted it.
bool Engine::EntryIsTyped() const {
  if (!mblnShowingResult) return true;
  return !mblnPosted && !(mblnNewCalc && common::tryNumber(c_.txtEntry.text()) == 0.0);
}

// Behind an error there is nothing to print: it has printed a zero total already.
void Engine::PrintTotal() {
  if (mstrTapeOp == "*") return;
  mstrTapeOp = "*";
  FormatEntry();
  PostToTape();
}

// What the box shows is printed as the total; right behind a total that is a zero.
void Engine::PrintShown() {
  if (mstrTapeOp == "*") {
    ShowValue("0");
    mdblTotal = 0;
  }
  mstrTapeOp = "*";
  PostToTape();
  if (addMode()) mdblTotal = 0;
}

// A total closes the calculation: the modes may be changed again.
void Engine::EndCalculation() {
  c_.mnuWinModes.setEnabled(true);
  c_.mnuWinModes.setCaption("Modes");
  mblnNewCalc = true;
}

void Engine::cmdClearCurrent_Click() {
  c_.txtEntry.setText("");
  mblnShowingResult = mblnPosted = mblnValue = false;
  c_.txtEntry.setFocus();
}

void Engine::cmdClearCalc_Click() {
  ClearCalculation();
  focusEntryAtEnd();
}

void Engine::ClearCalculation() {
  ShowValue("0");
  if (mblnTempCalc) {
    mintMode = kAddMode;
    mblnTempCalc = false;
  }
  mdblTotal = 0;
  mstrPendingOp.clear();
  EndCalculation();
  mstrTapeOp = "*";
  PostToTape();
  mblnPosted = false;
}

void Engine::cmdClearAll_Click() {
  ClearCalculation();
  cmdClearCurrent_Click();
  cmdClearTape_Click();
  mdblLastEntry = 0;
  mstrKey.clear();
  mstrErrText.clear();
}

}  // namespace engine
