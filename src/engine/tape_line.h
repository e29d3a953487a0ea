#pragma once

#include <string>

#include "engine/amount.h"

namespace engine {

/// What follows an amount on the tape: what was done with it.
enum class Mark { First, Plus, Minus, Times, Divide, Root, Total };

/// An amount on the tape, and its mark.
struct TapeLine {
  Amount amount;
  Mark mark = Mark::First;
};

/// How the amounts on the tape are written.
struct TapeForm {
  /// Right-aligned in lines of kTapeWidth characters.
  bool padded = false;
  /// As they were keyed; else with `places` decimals.
  bool floating = false;
  int places = 0;
};

/// The width of the lines of a padded tape, in characters.
inline constexpr int kTapeWidth = 26;

/// The tape's first line.
std::string tapeHeader(bool padded);

/// A line as it is on the tape; in a padded tape a longer one is written as it is.
std::string tapeText(const TapeLine& line, const TapeForm& form);

/// The line behind a total.
std::string tapeSeparator(bool padded);

}  // namespace engine
