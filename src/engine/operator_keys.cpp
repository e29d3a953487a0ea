#include "common/number_text.h"
#include "engine/adding_machine.h"
#include "engine/show_error.h"

namespace engine {

void AddingMachine::plus() {
  postWith(Operator::Plus);
}

void AddingMachine::minus() {
  postWith(Operator::Minus);
}

void AddingMachine::times() {
  startProduct(Operator::Times);
}

void AddingMachine::divide() {
  startProduct(Operator::Divide);
}

// False if the amount was refused; nothing is posted then.
bool AddingMachine::postWith(Operator key) {
  if (!processEntry(key)) return false;
  entry_.format();
  return true;
}

void AddingMachine::startProduct(Operator key) {
  if (!addMode()) {
    postWith(key);
    return;
  }
  // The entry, or the running total just shown, becomes the first operand.
  const bool isOperand = entry_.isPosted() && calculation_.isOpen();
  if (!isOperand && !postWith(Operator::Plus)) return;
  mode_ = Mode::Product;
  calculation_.wait(key);
  entry_.setFocus();
}

bool AddingMachine::processEntry(Operator key) {
  bool done = true;
  const std::string text = entry_.settle();
  if (entry_.isPosted() && addMode()) {
    done = applyOperator(amountOf(lastAmount_), key);
  } else if (isBlank(text)) {
    entry_.clear();
  } else {
    done = takeEntry(text, key);
  }
  entry_.setFocus();
  return done;
}

bool AddingMachine::takeEntry(const std::string& text, Operator key) {
  const auto amount = entry_.take(text);
  return amount && applyOperator(*amount, key);
}

// False if the amount was refused; the calculation is unchanged then.
bool AddingMachine::applyOperator(const Amount& amount, Operator key) {
  const double largest = decimals_.floating() ? kLargestFloatingTotal : kLargestFixedTotal;
  const Outcome outcome = addMode() ? calculation_.add(amount, key, largest)
                                    : calculation_.calculate(amount, key, largest);
  if (const auto* refusal = std::get_if<Refusal>(&outcome)) {
    showError(desktop_, refusal->error);
    return false;
  }
  if (const auto* failure = std::get_if<Failure>(&outcome)) {
    postFailure(*failure);
  } else {
    postToTape(std::get<TapeLine>(outcome));
  }
  return true;
}

// Prints the line and shows the running total in the entry box.
void AddingMachine::postToTape(const TapeLine& line) {
  const bool closes = line.mark == Mark::Total;
  lockModes(!closes);
  decimals_.fillEmptyBox();
  tape_.print(line);
  if (closes) calculation_.close();
  lastAmount_ = line.amount.value;
  entry_.showTotal(calculation_.total());
  entry_.setFocus();
}

// Prints the reason and starts a new calculation.
void AddingMachine::postFailure(const Failure& failure) {
  tape_.printFailure(failure.reason);
  clearTotal();
  desktop_.showMessage({.text = "The entry caused an error: " + std::string(failure.reason)});
}

// The modes can be changed only between two calculations.
void AddingMachine::lockModes(bool locked) {
  mnuWinModes_.setEnabled(!locked);
  mnuWinModes_.setCaption(locked ? "Modes (equals to enable)" : "Modes");
}

void AddingMachine::percent() {
  const std::string text = entry_.settle();
  const auto amount = text.empty() ? std::nullopt : entry_.amountIn(text);
  if (amount) showPercent(*amount);
  entry_.setFocus();
}

void AddingMachine::showPercent(const Amount& amount) {
  entry_.showValue(common::toText(amount.value * 0.01));
  entry_.takeAsResult();
  entry_.format();
  if (mode_ == Mode::Product) total();
}

}  // namespace engine
