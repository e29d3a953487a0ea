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
#include <tuple>
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

// Each exact in a double, as is a whole number of up to 15 digits.
constexpr std::array kPowersOfTen = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                     1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                     1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr long long kMostPlaces = kPowersOfTen.size() - 1;
constexpr std::size_t kExactDigits = 15;

// A double close to a number: only its first digits count, and each step is rounded.
double estimate(const Decimal& number) {
  const std::string digits = number.digits.substr(0, kExactDigits);
  double value = 0;
  for (const char digit : digits) value = value * 10 + (digit - '0');
  long long places = static_cast<long long>(digits.size()) - number.point;
  while (places != 0 && value != 0 && std::isfinite(value)) {
    const long long step = std::clamp(places, -kMostPlaces, kMostPlaces);
    const double power = kPowersOfTen[static_cast<std::size_t>(std::abs(step))];
    value = step > 0 ? value / power : value * power;
    places -= step;
  }
  return value;
}

// Whether no digit of a number is left out of its estimate, and one power of ten is enough.
bool isRoundedOnce(const Decimal& number) {
  const auto length = static_cast<long long>(number.digits.size());
  return number.digits.size() <= kExactDigits && std::abs(length - number.point) <= kMostPlaces;
}

}  // namespace

Decimal exactDecimal(double value) {
  return decimalOf(binaryOf(std::bit_cast<std::uint64_t>(std::abs(value))));
}

double nearestDouble(const Decimal& number) {
  if (number.digits.empty()) return 0;
  const double estimated = estimate(number);
  if (isRoundedOnce(number)) return estimated;
  const std::string digits = number.digits.substr(0, number.digits.find_last_not_of('0') + 1);
  const auto given = std::tie(number.point, digits);
  // Doubles that are not negative have the same order as their bits. The digits that the estimate
  // leaves out make up to 91 doubles, and each of its 16 roundings one.
  constexpr std::uint64_t kMostAway = 128;
  constexpr auto kInfinity = std::bit_cast<std::uint64_t>(std::numeric_limits<double>::infinity());
  const auto nearby = std::bit_cast<std::uint64_t>(estimated);
  std::uint64_t low = nearby - std::min(nearby, kMostAway);
  std::uint64_t high = std::min(nearby + kMostAway, kInfinity);
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
