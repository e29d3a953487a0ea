#include "engine/calculation.h"

#include <cmath>

#include "common/run_time_error.h"

namespace engine {

namespace {

Mark markOf(Operator key) {
  switch (key) {
    case Operator::Plus:
      return Mark::Plus;
    case Operator::Minus:
      return Mark::Minus;
    case Operator::Times:
      return Mark::Times;
    case Operator::Divide:
      return Mark::Divide;
    case Operator::Root:
      return Mark::Root;
    case Operator::Equals:
      break;
  }
  return Mark::Total;
}

Outcome checkRange(double total, double largestTotal, Outcome outcome) {
  const bool refused = std::holds_alternative<Refusal>(outcome);
  if (!refused && std::abs(total) > largestTotal) return Failure{" result too large"};
  return outcome;
}

}  // namespace

Outcome Calculation::add(const Amount& amount, Operator key, double largestTotal) {
  if (key == Operator::Plus || key == Operator::Minus) {
    const double sum = resultOf(key, amount.value);
    if (!std::isfinite(sum)) return Refusal{common::kOverflow};
    total_ = sum;
    lastMark_ = markOf(key);
  }
  open_ = true;
  return checkRange(total_, largestTotal, TapeLine{amount, lastMark_});
}

Outcome Calculation::calculate(const Amount& amount, Operator key, double largestTotal) {
  Outcome outcome;
  if (key == Operator::Root) {
    outcome = calculateWith(key, amount);
  } else if (open_) {
    outcome = calculateWith(pendingOperator_, amount);
  } else {
    open_ = true;
    total_ = amount.value;
    lastMark_ = Mark::First;
    outcome = TapeLine{amount, lastMark_};
  }
  if (!std::holds_alternative<Refusal>(outcome)) pendingOperator_ = key;
  return checkRange(total_, largestTotal, outcome);
}

Outcome Calculation::calculateWith(Operator waiting, const Amount& amount) {
  if (waiting == Operator::Divide && amount.text == "0") return Failure{" divide by zero."};
  if (waiting == Operator::Divide && amount.value == 0) return Refusal{common::kDivisionByZero};
  if (waiting == Operator::Root && amount.value < 0) return Refusal{common::kInvalidProcedureCall};
  const double result = resultOf(waiting, amount.value);
  if (!std::isfinite(result)) return Refusal{common::kOverflow};
  total_ = result;
  lastMark_ = markOf(waiting);
  return TapeLine{amount, lastMark_};
}

double Calculation::resultOf(Operator key, double amount) const {
  switch (key) {
    case Operator::Plus:
      return total_ + amount;
    case Operator::Minus:
      return total_ - amount;
    case Operator::Times:
      return total_ * amount;
    case Operator::Divide:
      return total_ / amount;
    case Operator::Root:
      return std::sqrt(amount);
    case Operator::Equals:
      break;
  }
  return total_;
}

void Calculation::close() {
  pendingOperator_ = Operator::Equals;
  lastMark_ = Mark::Total;
  open_ = false;
}

}  // namespace engine
