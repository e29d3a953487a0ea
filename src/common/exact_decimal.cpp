// The standard library's conversions would weigh a tenth of the program, and some C libraries do
// not round exactly.
#include "common/exact_decimal.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <optional>
#include <tuple>
#include <utility>
#include <vector>

namespace common {
namespace {

static_assert(std::numeric_limits<double>::is_iec559);

// A whole number times a power of two.
struct Binary {
  std::uint64_t significand;
  int exponent;
};

Binary binaryOf(std::uint64_t bitsOfDouble) {
  constexpr int kFractionBits = 52;
  constexpr int kLeastExponent = -1074;
  constexpr std::uint64_t kImplicitBit = std::uint64_t{1} << kFractionBits;
  const std::uint64_t fraction = bitsOfDouble % kImplicitBit;
  const int exponent = static_cast<int>(bitsOfDouble / kImplicitBit);
  if (exponent == 0) return {fraction, kLeastExponent};
  return {fraction + kImplicitBit, kLeastExponent + exponent - 1};
}

// A whole number of any size: its digits in groups of nine, the last group first.
class WholeNumber {
 public:
  explicit WholeNumber(std::uint64_t value) {
    for (; value != 0; value /= kGroup) groups_.push_back(value % kGroup);
  }

  void multiplyByPower(std::uint64_t base, int exponent) {
    while (exponent > 0) {
      std::uint64_t factor = 1;
      for (; exponent > 0 && factor * base < kGroup; --exponent) factor *= base;
      multiplyBy(factor);
    }
  }

  std::string digits() const {
    std::string digits(groups_.size() * kDigitsOfGroup, '0');
    auto place = digits.rbegin();
    for (std::uint64_t group : groups_) {
      for (int i = 0; i < kDigitsOfGroup; ++i, group /= 10)
        *place++ = static_cast<char>('0' + group % 10);
    }
    return digits.substr(std::min(digits.find_first_not_of('0'), digits.size()));
  }

 private:
  static constexpr int kDigitsOfGroup = 9;
  static constexpr std::uint64_t kGroup = 1'000'000'000;

  void multiplyBy(std::uint64_t factor) {
    std::uint64_t carry = 0;
    for (std::uint64_t& group : groups_) {
      carry += group * factor;
      group = carry % kGroup;
      carry /= kGroup;
    }
    if (carry != 0) groups_.push_back(carry);
  }

  std::vector<std::uint64_t> groups_;
};

Decimal decimalOf(Binary number) {
  // The fewer bits behind the point, the less there is to multiply.
  for (; number.significand % 2 == 0 && number.exponent < 0; ++number.exponent)
    number.significand /= 2;
  WholeNumber whole(number.significand);
  // Half of a number is five tenths of it.
  whole.multiplyByPower(number.exponent < 0 ? 5 : 2, std::abs(number.exponent));
  Decimal decimal = {whole.digits()};
  decimal.point = static_cast<long long>(decimal.digits.size()) + std::min(number.exponent, 0);
  decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
  return decimal;
}

// Half way from a double to the next larger one.
Decimal halfWayAbove(std::uint64_t bitsOfDouble) {
  const Binary number = binaryOf(bitsOfDouble);
  return decimalOf({2 * number.significand + 1, number.exponent - 1});
}

// A number of up to 15 digits, up to 22 of its places behind the point. In a double, the digits and
// the power of ten are both exact, so that their quotient is rounded once.
std::optional<double> exactQuotient(const Decimal& number) {
  constexpr std::array kPowersOfTen = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                       1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                       1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
  constexpr long long kExactDigits = 15;
  const auto length = static_cast<long long>(number.digits.size());
  const long long places = length - number.point;
  if (length > kExactDigits || places < 0 || std::cmp_greater_equal(places, kPowersOfTen.size()))
    return {};
  double digits = 0;
  for (const char digit : number.digits) digits = digits * 10 + (digit - '0');
  return digits / kPowersOfTen[static_cast<std::size_t>(places)];
}

}  // namespace

Decimal exactDecimal(double value) {
  return decimalOf(binaryOf(std::bit_cast<std::uint64_t>(std::abs(value))));
}

double nearestDouble(const Decimal& number) {
  if (number.digits.empty()) return 0;
  if (const auto exact = exactQuotient(number)) return *exact;
  const std::string digits = number.digits.substr(0, number.digits.find_last_not_of('0') + 1);
  const auto given = std::tie(number.point, digits);
  // Doubles that are not negative have the same order as their bits.
  std::uint64_t low = 0;
  auto high = std::bit_cast<std::uint64_t>(std::numeric_limits<double>::infinity());
  while (low < high) {
    const std::uint64_t middle = low + (high - low) / 2;
    const Decimal above = halfWayAbove(middle);
    const auto halfWay = std::tie(above.point, above.digits);
    const bool isEven = middle % 2 == 0;
    if (given < halfWay || (given == halfWay && isEven)) {
      high = middle;
    } else {
      low = middle + 1;
    }
  }
  return std::bit_cast<double>(low);
}

}  // namespace common
