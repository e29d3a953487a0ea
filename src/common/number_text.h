#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "common/exact_decimal.h"

namespace common {

/// Whether a character is one of the digits 0 to 9.
constexpr bool isDigit(int character) {
  return character >= '0' && character <= '9';
}

/// Whether a text is a single digit.
constexpr bool isOneDigit(std::string_view text) {
  return text.size() == 1 && isDigit(text.front());
}

/// The number that a text represents. Accepted: surrounding blanks and tabs; a leading sign or a
/// trailing minus; "$"; parentheses for a negative number; digits with "," anywhere in the integer
/// part; a "."; an exponent. Null for any other text, and when out of the range of a double.
std::optional<double> tryNumber(std::string_view text);

/// Like tryNumber, but raises error 13 for a text that is not a number, error 6 when out of range.
double toNumber(std::string_view text);

/// Whether a text is a number with misplaced commas, which do not separate groups of three digits:
/// 12,50 and 1234,567, but not 1,234.50.
bool hasOddCommas(std::string_view text);

/// The shortest general text of a finite number: at most 15 significant digits, correctly rounded,
/// an exponent ("1E+15", "3.33333333333333E-06") only where fixed notation needs more than 15
/// digits before or after the point. Zero of either sign is "0".
std::string toText(double value);

/// A number in plain notation: no exponent, "$", parentheses, trailing minus or surrounding blanks,
/// and at least one digit before the point. Digits and commas stay as they are; text that is plain
/// already is returned unchanged. Null as for tryNumber.
std::optional<std::string> toPlainText(std::string_view text);

/// The absolute value of a finite number, correctly rounded to 15 significant digits, without
/// trailing zeros.
Decimal toDigits(double value);

/// Keeps the first `count` digits, of at least as many; `up` adds one to the last of them. Without
/// trailing zeros.
void cutDigits(Decimal& number, std::size_t count, bool up);

}  // namespace common
