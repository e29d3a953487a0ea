#include "engine/calculation.h"

#include <array>
#include <cassert>
#include <cmath>

#include "common/run_time_error.h"

namespace engine {

namespace {

// In the order of the operators. Equals has no mark: the total closes the calculation at once.
constexpr std::array kMarks = {Mark::Plus, Mark::Minus, Mark::Times, Mark::Divide, Mark::Root};

Mark markOf(Operator key) {
  return kMarks.at(static_cast<std::size_t>(key));
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
    if (!isShowable(sum)) return Refusal{common::kOverflow};
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
  if (!isShowable(result)) return Refusal{common::kOverflow};
  total_ = result;
  lastMark_ = markOf(waiting);
  return TapeLine{amount, lastMark_};
}

double Calculation::resultOf(Operator key, double amount) const {
  if (key == Operator::Plus) return total_ + amount;
  if (key == Operator::Minus) return total_ - amount;
  if (key == Operator::Times) return total_ * amount;
  if (key == Operator::Divide) return total_ / amount;
  assert(key == Operator::Root);
  return std::sqrt(amount);
}

void Calculation::close() {
  pendingOperator_ = Operator::Equals;
  lastMark_ = Mark::Total;
  open_ = false;
}

}  // namespace engine
