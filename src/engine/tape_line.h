#pragma once

#include <string>
#include <string_view>

namespace engine {

/// The width of the lines of a padded tape, in characters.
inline constexpr int kTapeWidth = 26;

/// The tape's first line.
std::string tapeHeader(bool padded);

/// An amount and the symbol that the tape shows behind it; right-aligned in a padded tape, where a
/// longer line is written as it is.
std::string tapeLine(std::string_view amount, std::string_view symbol, bool padded, bool floating);

/// The line behind a total.
std::string tapeSeparator(bool padded);

}  // namespace engine
