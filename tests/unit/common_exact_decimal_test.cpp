#include "common/exact_decimal.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <string>
#include <system_error>
#include <vector>

#include "common/number_text.h"

namespace common {
namespace {

using Double = std::numeric_limits<double>;

std::string textOf(const Decimal& number) {
  return "0." + number.digits + "e" + std::to_string(number.point);
}

// What the standard library reads, and 0 or infinity where it reports only that the number is out
// of the range of a double.
double readByLibrary(const std::string& text, long long point) {
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error == std::errc::result_out_of_range) return point > 0 ? Double::infinity() : 0;
  return value;
}

void expectAsTheLibrary(const Decimal& number) {
  const std::string text = textOf(number);
  EXPECT_EQ(nearestDouble(number), readByLibrary(text, number.point)) << text;
}

// Reads a number that the C library has printed in scientific notation: "1.25e-03".
Decimal decimalOf(const std::string& printed) {
  const std::size_t exponentAt = printed.find('e');
  return {printed.front() + printed.substr(2, exponentAt - 2),
          std::stoll(printed.substr(exponentAt + 1)) + 1};
}

// The first is not 0.
std::string randomDigits(std::mt19937_64& random, std::size_t length) {
  std::string digits(1, static_cast<char>('1' + random() % 9));
  while (digits.size() < length) digits += static_cast<char>('0' + random() % 10);
  return digits;
}

double randomDouble(std::mt19937_64& random) {
  const auto infinity = std::bit_cast<std::uint64_t>(Double::infinity());
  return std::bit_cast<double>(random() % infinity);
}

TEST(ExactDecimal, HasEveryDigit) {
  const Decimal tenth = exactDecimal(-0.1);
  EXPECT_EQ(tenth.digits, "1000000000000000055511151231257827021181583404541015625");
  EXPECT_EQ(tenth.point, 0);
  const Decimal eighth = exactDecimal(0.0125 * 10);
  EXPECT_EQ(eighth.digits, "125");
  EXPECT_EQ(eighth.point, 0);
  const Decimal large = exactDecimal(1e23);
  EXPECT_EQ(large.digits, "99999999999999991611392");
  EXPECT_EQ(large.point, 23);
}

TEST(ExactDecimal, HasNoTrailingZeros) {
  const Decimal number = exactDecimal(1250000);
  EXPECT_EQ(number.digits, "125");
  EXPECT_EQ(number.point, 7);
}

TEST(ExactDecimal, HasNoDigitsForZero) {
  EXPECT_EQ(exactDecimal(0.0).digits, "");
  EXPECT_EQ(exactDecimal(-0.0).digits, "");
  EXPECT_EQ(exactDecimal(0.0).point, 0);
}

TEST(ExactDecimal, ReachesTheLimitsOfTheRange) {
  const Decimal least = exactDecimal(Double::denorm_min());
  EXPECT_EQ(least.digits.substr(0, 20), "49406564584124654417");
  EXPECT_EQ(least.digits.size(), 751U);
  EXPECT_EQ(least.point, -323);
  EXPECT_EQ(exactDecimal(Double::min()).point, -307);
  const Decimal largest = exactDecimal(Double::max());
  EXPECT_EQ(largest.digits.substr(0, 20), "17976931348623157081");
  EXPECT_EQ(largest.digits.size(), 309U);
  EXPECT_EQ(largest.point, 309);
}

TEST(ExactDecimal, IsReadBackAsTheSameDouble) {
  std::mt19937_64 random(3);
  for (int i = 0; i < 500; ++i) {
    const double value = randomDouble(random);
    EXPECT_EQ(nearestDouble(exactDecimal(value)), value);
  }
}

TEST(NearestDouble, IsZeroWithoutDigits) {
  EXPECT_EQ(nearestDouble({}), 0);
  EXPECT_EQ(nearestDouble({"", 400}), 0);
}

TEST(NearestDouble, IsThatOfTheStandardLibraryForHardNumbers) {
  const std::string nines(800, '9');
  const std::vector<Decimal> numbers = {
      {"1", -323},                       // 1e-324
      {"2", -323},                       //
      {"3", -323},                       //
      {"49406564584124654", -323},       //
      {"22250738585072011", -307},       // between the largest subnormal and the least normal
      {"22250738585072014", -307},       //
      {"17976931348623157", 309},        //
      {"17976931348623158", 309},        // nearest to the largest double
      {"17976931348623159", 309},        // out of range
      {"9007199254740993", 16},          // half way, the even one is below
      {"9007199254740995", 16},          // half way, the even one is above
      {"90071992547409930", 16},         //
      {"9007199254740993" + nines, 16},  //
      {"9007199254740992" + nines, 16},  //
      {nines, 0},
      {nines, 16},
      {nines, 308},
      {nines, -323},
      {nines, 309},
      {nines, -324},
      {"1", 23},
      {"1", 24},
      {"1", 400},
      {"1", -400},
      {"1", 309},
      {"1", 310},
  };
  for (const Decimal& number : numbers) expectAsTheLibrary(number);
}

// Around the limits up to which the digits and the power of ten are exact.
TEST(NearestDouble, IsThatOfTheStandardLibraryForShortNumbers) {
  std::mt19937_64 random(20);
  for (int i = 0; i < 20000; ++i) {
    Decimal number = {randomDigits(random, 1 + random() % 18)};
    number.point = static_cast<long long>(random() % 80) - 30;
    expectAsTheLibrary(number);
  }
}

TEST(NearestDouble, IsThatOfTheStandardLibraryForLongNumbers) {
  std::mt19937_64 random(21);
  for (int i = 0; i < 2000; ++i) {
    Decimal number = {randomDigits(random, 16 + random() % 900)};
    number.point = static_cast<long long>(random() % 660) - 340;
    expectAsTheLibrary(number);
  }
}

// A long double has room for the bit that is half way between two doubles.
TEST(NearestDouble, IsTheEvenOneOfTwoNeighbors) {
  std::mt19937_64 random(22);
  for (int i = 0; i < 500; ++i) {
    const double value = randomDouble(random);
    const double next = std::nextafter(value, Double::infinity());
    if (std::isinf(next)) continue;
    const long double halfWay = (static_cast<long double>(value) + next) / 2;
    char printed[1200];
    std::snprintf(printed, sizeof printed, "%.1100Le", halfWay);
    Decimal number = decimalOf(printed);
    expectAsTheLibrary(number);
    number.digits += '1';
    expectAsTheLibrary(number);
    number = decimalOf(printed);
    number.digits.erase(number.digits.find_last_not_of('0'));
    expectAsTheLibrary(number);
  }
}

// Work that grew with the square of the length would take hours.
TEST(NearestDouble, TakesTenMillionDigits) {
  std::string digits(10'000'000, '0');
  digits.front() = '1';
  digits.back() = '5';
  EXPECT_EQ(nearestDouble({digits, 1}), 1);
  EXPECT_EQ(nearestDouble({digits, -300}), 1e-301);
}

// To fifteen digits, of two equally near texts the one with the even digit.
TEST(NumberDigits, AreThoseOfTheStandardLibrary) {
  std::mt19937_64 random(23);
  for (int i = 0; i < 20000; ++i) {
    double value = randomDouble(random);
    // Halves with sixteen digits are ties.
    if (i % 2)
      value = static_cast<double>(random() % 899'999'999'999'999 + 100'000'000'000'000) + 0.5;
    char text[32];
    const auto end =
        std::to_chars(text, text + sizeof text, value, std::chars_format::scientific, 14).ptr;
    Decimal expected = decimalOf(std::string(text, end));
    expected.digits.erase(expected.digits.find_last_not_of('0') + 1);
    const Decimal number = toDigits(value);
    EXPECT_EQ(number.digits, expected.digits) << value;
    EXPECT_EQ(number.point, expected.point) << value;
  }
}

}  // namespace
}  // namespace common
