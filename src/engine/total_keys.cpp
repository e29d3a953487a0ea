#include <cassert>

#include "common/number_text.h"
#include "engine/adding_machine.h"

namespace engine {

void AddingMachine::equals() {
  total();
  entry_.setFocus();
}

// False if it was refused or had nothing to do.
bool AddingMachine::total() {
  const std::string text = entry_.settle();
  if (isBlank(text)) {
    entry_.clear();
    return false;
  }
  if (addMode() && !entry_.isPosted()) {
    askForPlusOrMinus(text);
    return false;
  }
  if (!entryIsTyped(text)) {
    printShown();
  } else if (!printEntryAndTotal(text)) {
    return false;
  }
  entry_.format();
  if (mode_ == Mode::Product) {
    mode_ = Mode::Add;
    calculation_.clearTotal();
  }
  return true;
}

void AddingMachine::askForPlusOrMinus(const std::string& text) {
  desktop_.showMessage(
      {.text = "Since you are in \"Add Mode\" you must first hit the plus or minus key for the "
               "current entry which is " +
               text +
               ".  If you do not want the current entry then enter zero and click plus and then "
               "click equals."});
  desktop_.beep();
}

// The zero that a total or C&Total leaves in the box was neither typed nor posted.
bool AddingMachine::entryIsTyped(const std::string& text) const {
  if (!entry_.isResult()) return true;
  const bool nothingTaken = !calculation_.isOpen();
  return !entry_.isPosted() && !(nothingTaken && common::tryNumber(text) == 0.0);
}

// Only in calculator mode: in add mode, plus or minus has posted the entry. After a failure there
// is nothing to print: it has printed a zero total already.
bool AddingMachine::printEntryAndTotal(const std::string& text) {
  if (!takeEntry(text, Operator::Equals)) return false;
  if (calculation_.lastMark() == Mark::Total) return true;
  entry_.format();
  printShownAsTotal();
  return true;
}

// After a total, prints a zero.
void AddingMachine::printShown() {
  if (calculation_.lastMark() == Mark::Total) {
    entry_.showValue("0");
    calculation_.clearTotal();
  }
  printShownAsTotal();
  if (addMode()) calculation_.clearTotal();
}

void AddingMachine::printShownAsTotal() {
  const auto amount = entry_.amountIn(entry_.text());
  assert(amount);
  postToTape({*amount, Mark::Total});
}

void AddingMachine::squareRoot() {
  if (isBlank(entry_.text())) {
    desktop_.showMessage({.text = "There must be an entry before running a square root function."});
  } else {
    takeSquareRoot();
  }
  entry_.setFocus();
}

void AddingMachine::takeSquareRoot() {
  if (calculation_.operatorWaits() && !total()) return;
  if (!processEntry(Operator::Root)) return;
  entry_.format();
  total();
}

}  // namespace engine
