#include "common/number_pattern.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "common/number_text.h"

namespace common {
namespace {

constexpr const char* kWhole = "###,###,###,###,##0";
constexpr const char* kTwoPlaces = "###,###,###,###,##0.00";

struct PatternCase {
  double value;
  std::string shown;
};

void expectShown(std::string_view pattern, const std::vector<PatternCase>& cases) {
  for (const PatternCase& each : cases) {
    EXPECT_EQ(formatNumber(each.value, pattern), each.shown) << "with " << pattern;
  }
}

struct TextCase {
  std::string text;
  std::string shown;
};

void expectTextShown(std::string_view pattern, const std::vector<TextCase>& cases) {
  for (const TextCase& each : cases) {
    EXPECT_EQ(formatText(each.text, pattern), each.shown) << "with " << pattern;
  }
}

TEST(NumberPattern, GroupsWholeNumbersByThousands) {
  expectShown(kWhole, {{0, "0"},
                       {5, "5"},
                       {999, "999"},
                       {1000, "1,000"},
                       {123456, "123,456"},
                       {1234567, "1,234,567"},
                       {100000000000000, "100,000,000,000,000"},
                       {999999999999999, "999,999,999,999,999"},
                       {-1000, "-1,000"},
                       {-100, "-100"}});
}

TEST(NumberPattern, PrintsDigitsBeyondThePattern) {
  expectShown(kWhole, {{1e16, "10,000,000,000,000,000"},
                       {1e20, "100,000,000,000,000,000,000"},
                       {1234567890123456789.0, "1,234,567,890,123,460,000"},
                       {-1e18, "-1,000,000,000,000,000,000"}});
  expectShown("####0", {{123456789, "123456789"}});
  expectShown("0.0", {{1234.5, "1234.5"}});
  expectShown("$ ###,###,###,##0.00", {{123456789012345, "$ 123,456,789,012,345.00"}});
  expectShown("#,##0", {{1e9, "1,000,000,000"}});
  EXPECT_EQ(formatNumber(std::numeric_limits<double>::max(), "0").size(), 309u);
}

TEST(NumberPattern, ShowsTheRequiredPlaces) {
  expectShown(kTwoPlaces, {{0, "0.00"},
                           {5, "5.00"},
                           {12.5, "12.50"},
                           {1234.56, "1,234.56"},
                           {0.05, "0.05"},
                           {-0.05, "-0.05"},
                           {1e20, "100,000,000,000,000,000,000.00"}});
  expectShown("000", {{5, "005"}, {-5, "-005"}, {0, "000"}, {1234, "1234"}});
  expectShown("0,000", {{5, "0,005"}});
}

TEST(NumberPattern, ShowsUpToNinePlaces) {
  expectShown("###,###,###,###,##0.000000000",
              {{1.0 / 3, "0.333333333"}, {1234.5, "1,234.500000000"}, {1e-9, "0.000000001"}});
}

TEST(NumberPattern, RoundsTheDecimalTextHalfAwayFromZero) {
  expectShown(kTwoPlaces, {{1.005, "1.01"},
                           {-1.005, "-1.01"},
                           {0.125, "0.13"},
                           {-0.125, "-0.13"},
                           {2.675, "2.68"},
                           {1.115, "1.12"},
                           {0.004, "0.00"},
                           {0.005, "0.01"},
                           {0.00499999999999999, "0.00"},
                           {8.345, "8.35"},
                           {1.0049999999999999, "1.01"}});
  expectShown("##0", {{0.5, "1"}, {1.5, "2"}, {2.5, "3"}, {0.49, "0"}, {-2.5, "-3"}});
}

TEST(NumberPattern, CarriesThroughNines) {
  expectShown(kTwoPlaces, {{999.995, "1,000.00"},
                           {-999.995, "-1,000.00"},
                           {0.995, "1.00"},
                           {9.999, "10.00"},
                           {999999.999, "1,000,000.00"},
                           {99.994, "99.99"},
                           {199.999, "200.00"}});
  expectShown(kWhole, {{999.5, "1,000"}, {999.4, "999"}, {0.95, "1"}});
}

TEST(NumberPattern, DropsTheSignOfAZero) {
  expectShown(kTwoPlaces, {{-0.004, "0.00"}, {-0.0, "0.00"}, {-1e-300, "0.00"}, {1e-300, "0.00"}});
  expectShown(kWhole, {{-0.4, "0"}, {-0.5, "-1"}});
  expectShown("% ###.00##", {{-0.00000001, "% .00"}});
  expectTextShown(kWhole, {{"-0", "0"}, {"-0.00", "0"}});
}

TEST(NumberPattern, PutsTheMinusInFrontOfEverything) {
  expectShown("$ ###,###,###,##0.00", {{-1234.5, "-$ 1,234.50"}, {-0.01, "-$ 0.01"}});
  expectShown("% ###.00##", {{-0.05, "-% 5.00"}});
}

TEST(NumberPattern, ShowsMoney) {
  expectShown("$ ###,###,###,##0.00",
              {{699.2145085527766, "$ 699.21"}, {100000, "$ 100,000.00"}, {0, "$ 0.00"}});
  expectTextShown("$ ###,###,###,##0.00 ",
                  {{"1250", "$ 1,250.00 "}, {"-1,250", "-$ 1,250.00 "}, {"abc", "abc"}, {"", ""}});
}

TEST(NumberPattern, ShowsARateWithTwoToFiveDecimals) {
  expectShown("####0.00### %", {{0.0725, "7.25 %"},
                                {0.0712345, "7.12345 %"},
                                {0.07123454, "7.12345 %"},
                                {0.07123455, "7.12346 %"},
                                {0.07, "7.00 %"},
                                {0.071, "7.10 %"},
                                {0.07123, "7.123 %"},
                                {0, "0.00 %"},
                                {-0.0725, "-7.25 %"},
                                {0.0000000001, "0.00 %"},
                                {12, "1200.00 %"}});
}

TEST(NumberPattern, ShiftsTheDecimalPointForPercentages) {
  expectShown("####0.00### %", {{0.285, "28.50 %"},
                                {0.57, "57.00 %"},
                                {1.1, "110.00 %"},
                                {0.00145, "0.145 %"},
                                {0.01000005, "1.00001 %"}});
}

TEST(NumberPattern, ShowsTheRateOfARecord) {
  expectTextShown("% ###.00##", {{"8.5", "% 850.00"},
                                 {"0.0725", "% 7.25"},
                                 {".071234", "% 7.1234"},
                                 {"0.07123", "% 7.123"},
                                 {"0.00725", "% .725"},
                                 {"0.001", "% .10"},
                                 {"0", "% .00"},
                                 {"-", "-"}});
}

TEST(NumberPattern, KeepsThePointWithoutDecimals) {
  expectShown("####0.##", {{359.999, "360."},
                           {11.88, "11.88"},
                           {11.8, "11.8"},
                           {12, "12."},
                           {0, "0."},
                           {0.004, "0."},
                           {-0.004, "0."},
                           {0.05, "0.05"}});
  expectTextShown("###,###,###,###,##0.", {{"1234.", "1,234."}, {"0.", "0."}, {"-5.", "-5."}});
}

TEST(NumberPattern, ShowsYearsAndMonthsWithoutAPoint) {
  expectShown("####0", {{30, "30"}, {0, "0"}, {29.99, "30"}, {12345, "12345"}, {123456, "123456"}});
}

TEST(NumberPattern, WritesSmallNumbersWithoutAnExponent) {
  expectTextShown("###.00000000000000", {{"1.5E-10", ".00000000015000"},
                                         {"3.33333333333333E-06", ".00000333333333"},
                                         {"1E-16", ".00000000000000"},
                                         {"-1E-16", ".00000000000000"},
                                         {"-1.5E-10", "-.00000000015000"},
                                         {"5E-15", ".00000000000001"},
                                         {"0", ".00000000000000"}});
  expectShown("###.00000000000000", {{1.5, "1.50000000000000"}, {0.25, ".25000000000000"}});
}

TEST(NumberPattern, OmitsUnusedOptionalDigits) {
  expectShown("###", {{0, ""}, {5, "5"}, {0.4, ""}, {0.5, "1"}});
  expectShown("#,###", {{0, ""}, {12, "12"}, {1234, "1,234"}});
  expectShown("0.0#", {{1, "1.0"}, {1.25, "1.25"}, {1.255, "1.26"}, {1.999, "2.0"}});
  expectShown("0.#0", {{1, "1.00"}});
  expectShown("0#", {{5, "05"}});
  expectShown(".00", {{12.5, "12.50"}, {0.5, ".50"}});
}

TEST(NumberPattern, PrintsOtherCharactersLiterally) {
  expectShown("<0.0>", {{1.25, "<1.3>"}});
  expectShown("0.0 a.b", {{1.25, "1.3 a.b"}});
  expectShown("$ .00", {{123, "$ 123.00"}});
  expectShown("EUR 0", {{-3, "-EUR 3"}});
  expectShown("", {{3, ""}, {0, ""}});
}

TEST(NumberPattern, LeavesNonNumericTextUnchanged) {
  for (const char* text : {"", "-", ".", "abc", "Error", "1.2.3", "5\r\n", "1E999", "-1E999"}) {
    EXPECT_EQ(formatText(text, kWhole), text);
    EXPECT_EQ(formatText(text, kTwoPlaces), text);
  }
}

TEST(NumberPattern, FormatsTextInAnyNotation) {
  expectTextShown(kTwoPlaces, {{"1,2,34", "1,234.00"},
                               {"(5)", "-5.00"},
                               {"$ 5", "5.00"},
                               {"1.5E+3", "1,500.00"},
                               {"999999999999999", "999,999,999,999,999.00"},
                               {"1E-999", "0.00"}});
}

TEST(NumberPattern, FormattingIsIdempotent) {
  std::mt19937_64 random(3);
  std::uniform_real_distribution<double> exponent(-4, 20);
  for (int i = 0; i < 20000; ++i) {
    const double value = std::pow(10, exponent(random)) * (i % 2 ? -1 : 1);
    const std::string shown = formatNumber(value, kTwoPlaces);
    EXPECT_EQ(formatText(shown, kTwoPlaces), shown);
  }
}

// The text of an amount in tenths of a cent can be computed with integers alone.
TEST(NumberPattern, RoundsTenthsOfACentAsByHand) {
  for (long long mills = 0; mills < 300000; ++mills) {
    char typed[32];
    std::snprintf(typed, sizeof typed, "%lld.%03lld", mills / 1000, mills % 1000);
    const long long cents = (mills + 5) / 10;
    char expected[32];
    std::snprintf(expected, sizeof expected, "%lld.%02lld", cents / 100, cents % 100);
    ASSERT_EQ(formatText(typed, "0.00"), expected) << typed;
  }
}

TEST(NumberPattern, AcceptsPatternsOfAnyLength) {
  const std::string zeros(65536, '0');
  EXPECT_EQ(formatNumber(0, zeros + "." + zeros), zeros + "." + zeros);
  EXPECT_EQ(formatNumber(5, std::string(65536, '#')), "5");
  EXPECT_EQ(formatNumber(0.5, std::string(65536, '%')).size(), 65536u);
}

}  // namespace
}  // namespace common
