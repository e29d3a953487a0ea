#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace common {

/// The number that a text represents. Accepted: blanks and tabs around; one sign in front or a
/// minus behind; "$"; parentheses for a negative; digits with "," anywhere in the integer part; a
/// "."; an exponent. Null for any other text, and beyond the range of a double.
std::optional<double> tryNumber(std::string_view text);

/// As tryNumber, but raises error 13 for a text that is no number, error 6 beyond the range.
double toNumber(std::string_view text);

/// Whether a text is a number, but with commas that do not part its integer part into groups of
/// three digits: 12,50 and 1234,567, not 1,234.50.
bool hasOddCommas(std::string_view text);

/// The shortest general text of a finite number: at most 15 significant digits, correctly rounded,
/// an exponent ("1E+15", "3.33333333333333E-06") only where fixed notation needs more than 15
/// digits in front of the point or behind it. Zero of either sign is "0".
std::string toText(double value);

/// A number that is not written plainly (exponent, "$", parentheses, a minus behind, blanks around,
/// no digit in front of its point) written plainly: sign in front, the digits and commas as they
/// are, a digit in front of the point. Text written plainly already comes back as it is. Null as
/// for tryNumber.
std::optional<std::string> toPlainText(std::string_view text);

/// A number in decimal: 0.DIGITS times ten to the power of `point`, so that `point` is the number
/// of digits in front of the decimal point. Zero has no digits and no sign.
struct DecimalDigits {
  bool negative = false;
  std::string digits;
  int point = 0;
};

/// A finite number correctly rounded to 15 significant digits, without zeros at either end.
DecimalDigits toDigits(double value);

}  // namespace common
