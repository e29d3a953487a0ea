#pragma once

#include <limits>
#include <string_view>
#include <variant>

#include "engine/tape_line.h"

namespace engine {

/// What is done with an amount.
enum class Operator { Plus, Minus, Times, Divide, Root, Equals };

/// The amount is refused with a run-time error; nothing has changed.
struct Refusal {
  int error;
};

/// The calculation cannot continue and has to be cleared. The reason is worded as on the tape.
struct Failure {
  std::string_view reason;
};

/// The result of an operation: a line for the tape if the amount was accepted.
using Outcome = std::variant<TapeLine, Refusal, Failure>;

/// The largest total with a fixed number of places and with a floating decimal.
inline constexpr double kLargestFixedTotal = 999'999'999'999'999;
inline constexpr double kLargestFloatingTotal = std::numeric_limits<double>::max();

/// The arithmetic of the adding machine: the running total and the pending operator.
class Calculation {
 public:
  double total() const { return total_; }
  /// Whether an amount has been taken since the last total.
  bool isOpen() const { return open_; }
  bool operatorWaits() const { return pendingOperator_ != Operator::Equals; }
  /// The mark of the last line on the tape.
  Mark lastMark() const { return lastMark_; }

  /// Add mode: Plus and Minus add or subtract the amount; any other operator changes neither total
  /// nor mark.
  Outcome add(const Amount& amount, Operator key, double largestTotal);
  /// Calculator mode: the first amount becomes the total; the pending operator is applied to each
  /// further one, and `key` becomes the pending operator. Root is applied to the amount at once.
  Outcome calculate(const Amount& amount, Operator key, double largestTotal);
  /// Sets the pending operator: the total is to be multiplied or divided.
  void wait(Operator key) { pendingOperator_ = key; }

  /// A total has been printed: the next amount starts a new calculation.
  void close();
  void clearTotal() { total_ = 0; }

 private:
  Outcome calculateWith(Operator waiting, const Amount& amount);
  double resultOf(Operator key, double amount) const;

  double total_ = 0;
  Operator pendingOperator_ = Operator::Equals;
  Mark lastMark_ = Mark::Total;
  bool open_ = false;
};

}  // namespace engine
