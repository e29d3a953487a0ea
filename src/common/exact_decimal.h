#pragma once

#include <string>

namespace common {

/// A number that is not negative, in decimal: 0.DIGITS times ten to the power of `point`, so that
/// `point` is the number of digits before the decimal point. The first digit is not 0; zero has no
/// digits.
struct Decimal {
  std::string digits;
  long long point = 0;
};

/// Exactly the absolute value of a finite number, without trailing zeros.
Decimal exactDecimal(double value);

/// The double nearest to a number, of two equally near ones the even one; infinity when out of the
/// range of a double.
double nearestDouble(const Decimal& number);

}  // namespace common
