#pragma once

#include <string>

#include "engine/amount.h"

namespace engine {

/// The mark after an amount on the tape: what was done with it.
enum class Mark { First, Plus, Minus, Times, Divide, Root, Total };

/// An amount on the tape, and its mark.
struct TapeLine {
  Amount amount;
  Mark mark = Mark::First;
};

/// How amounts are printed.
struct TapeForm {
  /// Right-aligned in lines of kTapeWidth characters.
  bool padded = false;
  /// As keyed; otherwise with `places` decimals.
  bool floating = false;
  int places = 0;
};

/// The width of the lines of a padded tape, in characters.
inline constexpr int kTapeWidth = 26;

/// The tape's first line.
std::string tapeHeader(bool padded);

/// The text of a line. On a padded tape, a line that is too long is not padded.
std::string tapeText(const TapeLine& line, const TapeForm& form);

/// The line after a total.
std::string tapeSeparator(bool padded);

}  // namespace engine
