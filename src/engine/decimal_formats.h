#pragma once

#include <string>
#include <string_view>

namespace engine {

/// The pattern of a number with `places` decimals, 0 to 9: the tape's and the totals'.
std::string decimalsPattern(int places);

/// An entry while the decimal floats: its integer part grouped, its decimals exactly as typed.
/// Raises error 13 when the integer part is no number.
std::string formatFloating(std::string_view text);

/// An entry whose point has been keyed: the decimals typed so far, at most `places`.
std::string formatKeyed(std::string_view text, int places);

/// An entry in stationary decimal: its digits fill from the right behind an implied point. Raises
/// error 13 when the text is no number.
std::string formatStationary(std::string_view text, int places);

/// A number that was not keyed digit by digit (a total, a recalled or pasted number), with all its
/// places.
std::string formatValue(std::string_view text, int places);

}  // namespace engine
