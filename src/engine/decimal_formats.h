#pragma once

#include <string>
#include <string_view>

namespace engine {

/// The pattern of a number with `places` decimals, 0 to 9, as on the tape and in totals.
std::string decimalsPattern(int places);

/// An entry with a floating decimal: the integer part grouped, the decimals exactly as typed.
/// Raises error 13 if the integer part is not a number.
std::string formatFloating(std::string_view text);

/// An entry with a keyed point: the decimals typed so far, at most `places`.
std::string formatKeyed(std::string_view text, int places);

/// An entry in stationary decimal: digits fill in from the right, after an implied point. Raises
/// error 13 if the text is not a number.
std::string formatStationary(std::string_view text, int places);

/// A number that was not keyed digit by digit (a total, a recalled or pasted number), with all
/// decimals.
std::string formatValue(std::string_view text, int places);

}  // namespace engine
