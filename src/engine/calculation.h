#pragma once

#include <limits>
#include <string_view>
#include <variant>

#include "engine/tape_line.h"

namespace engine {

/// What a key does with the amount that it takes.
enum class Operator { Plus, Minus, Times, Divide, Root, Equals };

/// The amount was refused with a run-time error; nothing has changed.
struct Refusal {
  int error;
};

/// The calculation cannot go on and has to be cleared. The reason is as the tape gives it.
struct Failure {
  std::string_view reason;
};

/// What became of an amount: a line for the tape when it was taken.
using Outcome = std::variant<TapeLine, Refusal, Failure>;

/// The largest total while the number of places is fixed, and while the decimal floats.
inline constexpr double kLargestFixedTotal = 999'999'999'999'999;
inline constexpr double kLargestFloatingTotal = std::numeric_limits<double>::max();

/// The arithmetic of the adding machine: a total, and the operator that waits for the next amount.
class Calculation {
 public:
  double total() const { return total_; }
  /// An amount has been taken since the last total.
  bool isOpen() const { return open_; }
  bool operatorWaits() const { return pendingOperator_ != Operator::Equals; }
  /// What the last line on the tape was marked with.
  Mark lastMark() const { return lastMark_; }

  /// Add mode: Plus and Minus add the amount or take it off; any other operator leaves the total
  /// and the mark as they are.
  Outcome add(const Amount& amount, Operator key, double largestTotal);
  /// Calculator mode: the first amount becomes the total; each further one goes through the
  /// operator that waits, and `key` waits from then on. Root takes the root of the amount at once.
  Outcome calculate(const Amount& amount, Operator key, double largestTotal);
  /// The total waits to be multiplied or divided.
  void wait(Operator key) { pendingOperator_ = key; }

  /// A total has been printed: the next amount begins a new calculation.
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
