#pragma once

#include <string>
#include <string_view>

namespace common {

/// A whole number grouped by thousands.
inline constexpr std::string_view kWholePattern = "###,###,###,###,##0";

/// Formats a number with a pattern: "#" is an optional digit, "0" a required one, "," in the
/// integer part groups by thousands, "." is the decimal point (printed even when no decimal
/// follows), "%" multiplies by 100 and is printed, any other character is literal. Works on the
/// 15-digit decimal text of the value, rounds half away from zero at the last place shown, and puts
/// "-" in front of a negative result. A result that rounds to zero has no sign.
std::string formatNumber(double value, std::string_view pattern);

/// The same for a text. Text that is not a number, or is out of the range of a double, is returned
/// unchanged.
std::string formatText(std::string_view text, std::string_view pattern);

}  // namespace common
