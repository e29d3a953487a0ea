#pragma once

#include <optional>
#include <string>

#include "driver/json.h"
#include "fuzz/exact_amount.h"

namespace fuzz {

/// What the user saw before and after a command.
struct Step {
  std::string command;
  driver::Json before;
  driver::Json after;
  bool boxShown = false;
  /// Such as a click on a key of a window that a dialog has disabled.
  bool refused = false;
};

/// Checks the arithmetic by hand: every total on the tape against the lines above it, the memory
/// against what was put into it, and that what stands on the tape stays there.
class Money {
 public:
  /// What is wrong after a step, or nothing.
  std::string findBroken(const Step& step);
  /// The program has been started, or ended.
  void forget();

 private:
  std::string findChangedTape(const Step& step);
  std::string findWrongTotal(const Step& step);
  std::string findWrongMemory(const Step& step);
  std::string addLine(const std::string& line, int places);

  // Of the additions since the last total; nothing when something else was calculated.
  std::optional<ExactAmount> sum_ = 0;
  std::optional<ExactAmount> memory_ = 0;
};

}  // namespace fuzz
