#include "common/number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "common/run_time_error.h"

namespace common {
namespace {

using Double = std::numeric_limits<double>;

struct Reading {
  std::string text;
  double value;
};

void expectNumbers(const std::vector<Reading>& readings) {
  for (const Reading& each : readings) {
    SCOPED_TRACE(testing::PrintToString(each.text));
    EXPECT_NO_THROW(EXPECT_EQ(toNumber(each.text), each.value));
    EXPECT_EQ(tryNumber(each.text), each.value);
  }
}

int errorOf(std::string_view text) {
  try {
    toNumber(text);
    return 0;
  } catch (const RunTimeError& error) {
    return error.number();
  }
}

void expectErrors(int number, const std::vector<std::string>& texts) {
  for (const std::string& text : texts) {
    SCOPED_TRACE(testing::PrintToString(text));
    EXPECT_EQ(errorOf(text), number);
    EXPECT_FALSE(toPlainText(text).has_value());
    EXPECT_FALSE(tryNumber(text).has_value());
  }
}

TEST(TextToNumber, ReadsDigitsWithAndWithoutAPoint) {
  expectNumbers({{"0", 0},
                 {"5", 5},
                 {"007", 7},
                 {"12.5", 12.5},
                 {"5.", 5},
                 {".5", 0.5},
                 {"0.10", 0.1},
                 {"999999999999999", 999999999999999}});
}

TEST(TextToNumber, ReadsALeadingSignOrATrailingMinus) {
  expectNumbers({{"-5", -5}, {"+5", 5}, {"5-", -5}, {"-.5", -0.5}, {".5-", -0.5}, {"5.-", -5}});
}

TEST(TextToNumber, ReadsADollarSignBeforeOrAfterTheSign) {
  expectNumbers({{"$5", 5},
                 {"-$5", -5},
                 {"+$5", 5},
                 {"$-5", -5},
                 {"$+5", 5},
                 {"$5-", -5},
                 {"$.5", 0.5},
                 {"$1E3", 1000}});
}

TEST(TextToNumber, ReadsAmountsAsTheTapePrintsThem) {
  expectNumbers({{"$ 5", 5},
                 {"$ 1,250.00 ", 1250},
                 {"-$ 1,250.00", -1250},
                 {"-$ 1,250.00 ", -1250},
                 {"$ -5", -5},
                 {"$\t 5", 5}});
}

TEST(TextToNumber, ReadsParenthesesAsANegative) {
  expectNumbers({{"(5)", -5},
                 {"($1,234.50)", -1234.5},
                 {"(.5)", -0.5},
                 {" (5) ", -5},
                 {"($ 5)", -5},
                 {"(1E3)", -1000}});
}

TEST(TextToNumber, ReadsCommasAnywhereInTheIntegerPart) {
  expectNumbers({{"1,234.50", 1234.5},
                 {"1,2,34", 1234},
                 {",5", 5},
                 {"5,", 5},
                 {"5,.5", 5.5},
                 {",,5,,", 5},
                 {"1,000,000", 1000000}});
}

TEST(TextToNumber, ReadsAnExponent) {
  expectNumbers({{"1.5E+3", 1500},
                 {"1e-2", 0.01},
                 {"1E+16", 1e16},
                 {"1E5", 1e5},
                 {"-1.5E300", -1.5e300},
                 {"1,500.E1", 15000},
                 {".5e1", 5},
                 {"1E0005", 1e5}});
}

TEST(TextToNumber, IgnoresSurroundingBlanksAndTabs) {
  expectNumbers({{" \t-5 ", -5}, {"5\t", 5}, {"  12.5  ", 12.5}});
}

TEST(TextToNumber, NeverReturnsNegativeZero) {
  for (const char* text : {"-0", "(0)", "0-", "-0.00", "-0E5", "-1E-999"}) {
    SCOPED_TRACE(text);
    EXPECT_EQ(toNumber(text), 0);
    EXPECT_FALSE(std::signbit(toNumber(text)));
  }
}

TEST(TextToNumber, RefusesTextWithoutADigit) {
  expectErrors(kTypeMismatch, {"",   " ",  "\t",  "-",  "+",  ".",  ",",   "-.", "$", "-$",
                               "$-", "()", "($)", "-,", ",.", "E5", ".E5", "(",  ")", "(-)"});
}

TEST(TextToNumber, RefusesMoreThanOneSign) {
  expectErrors(kTypeMismatch, {"--5", "-5-", "+5-", "+-5", "-$-5", "-$ -5", "(-5)", "(5-)", "(5)-",
                               "-(5)", "5--", "$-5-", "((5))", "$$5"});
}

TEST(TextToNumber, RefusesAMisplacedSign) {
  expectErrors(kTypeMismatch, {"5+", "1E5-", "1E-5-", "5-5", "5-.", "$(5)"});
}

TEST(TextToNumber, RefusesBlanksInside) {
  expectErrors(kTypeMismatch,
               {"1 2", "- 5", "5 -", "- $5", "( 5 )", "(5 )", "1. 5", "1 E5", "1E 5"});
}

TEST(TextToNumber, RefusesLettersLineBreaksAndOtherBytes) {
  expectErrors(kTypeMismatch, {"5x", "x5", "abc", "5\r\n", "5\n", "\r5", "0x10", "inf", "nan", "1E",
                               "1E+", "1D5", "5%",
                               "\xC2\xA0"
                               "5",
                               "\xE2\x88\x92"
                               "5",
                               "\xD9\xA5", std::string("5\0", 2), "(5", "5)"});
}

TEST(TextToNumber, RefusesASecondPointAndCommasAfterThePoint) {
  expectErrors(kTypeMismatch, {"1.2.3", "1..2", "1.5,0", "1.,5", ",.5", "$,.5", "1E1.5", "1E1,0"});
}

TEST(TextToNumber, OverflowsBeyondTheRangeOfADouble) {
  expectErrors(kOverflow,
               {"1E999", "-1E999", "1E309", "1.7976931348623159E308", "1E99999999999999999999999",
                "(1E999)", "10E308", "1" + std::string(309, '0'), "0.001E312"});
}

TEST(TextToNumber, ReadsTheLimitsOfTheRange) {
  expectNumbers({{"1.7976931348623157E308", Double::max()},
                 {"-1.7976931348623157E308", Double::lowest()},
                 {"2.2250738585072014E-308", Double::min()},
                 {"4.9E-324", Double::denorm_min()},
                 {"3E-324", Double::denorm_min()},
                 {"1E308", 1e308}});
}

TEST(TextToNumber, RoundsTinyNumbersToZero) {
  expectNumbers({{"1E-999", 0},
                 {"2E-324", 0},
                 {"1E-99999999999999999999999", 0},
                 {"0." + std::string(400, '0') + "1", 0},
                 {"0E99999999999999999999999", 0}});
}

TEST(TextToNumber, ExponentCanOffsetManyZeros) {
  expectNumbers({{"0." + std::string(1000, '0') + "5E1001", 5},
                 {"5" + std::string(1000, '0') + "E-1000", 5},
                 {std::string(1000, '0') + "5", 5}});
}

TEST(TextToNumber, RoundsCorrectly) {
  expectNumbers({{"0.1", 0.1},
                 {"0.30000000000000004", 0.30000000000000004},
                 {"9007199254740993", 9007199254740992.0},
                 {"9007199254740993." + std::string(100, '0') + "1", 9007199254740994.0},
                 {"123456789012345.67", 123456789012345.67}});
}

std::vector<std::string> longTexts(char filler, std::size_t length) {
  const std::string text(length, filler);
  return {text,       "1" + text,       text + "1",       "1E" + text,       "1." + text,
          "$" + text, "." + text + "1", "(" + text + ")", text + "E-" + text};
}

// Work that grew with the square of the length would take many minutes.
TEST(TextToNumber, TakesGarbageOfAnyLength) {
  for (const char filler : {'0', '9', ',', '.', '-', '(', ' ', 'E', 'x', '\0', '\xFF', '$', '\t'}) {
    const std::vector<std::string> texts = longTexts(filler, 65536);
    const std::vector<std::string> shorter = longTexts(filler, 500);
    for (std::size_t i = 0; i < texts.size(); ++i) {
      EXPECT_EQ(tryNumber(texts[i]), tryNumber(shorter[i])) << filler << i;
      EXPECT_EQ(toPlainText(texts[i]).has_value(), toPlainText(shorter[i]).has_value())
          << filler << i;
    }
  }
}

struct Writing {
  double value;
  std::string text;
};

void expectTexts(const std::vector<Writing>& writings) {
  for (const Writing& each : writings) EXPECT_EQ(toText(each.value), each.text);
}

TEST(NumberToText, WritesNoUnneededDigits) {
  expectTexts({{5, "5"}, {-1234.5, "-1234.5"}, {0.1, "0.1"}, {100, "100"}, {12.50, "12.5"}});
}

TEST(NumberToText, WritesAtMostFifteenDigits) {
  expectTexts({{1.0 / 3, "0.333333333333333"},
               {2.0 / 3, "0.666666666666667"},
               {0.1 + 0.2, "0.3"},
               {1000.0 / 3, "333.333333333333"},
               {360.0000000000001, "360"},
               {1.000000000000001, "1"},
               {1.00000000000001, "1.00000000000001"}});
}

TEST(NumberToText, WritesZeroWithoutASign) {
  expectTexts({{0.0, "0"}, {-0.0, "0"}});
}

TEST(NumberToText, WritesFifteenDigitsBeforeThePoint) {
  expectTexts({{999999999999999, "999999999999999"},
               {-999999999999999, "-999999999999999"},
               {123456789012345, "123456789012345"},
               {1e14, "100000000000000"},
               {12345678901234.5, "12345678901234.5"}});
}

TEST(NumberToText, WritesAnExponentFromSixteenIntegerDigits) {
  expectTexts({{1e15, "1E+15"},
               {-1e15, "-1E+15"},
               {1e16, "1E+16"},
               {1e20, "1E+20"},
               {1.5e300, "1.5E+300"},
               {1234567890123456, "1.23456789012346E+15"},
               {999999999999999.9, "1E+15"}});
}

TEST(NumberToText, WritesFifteenDecimals) {
  expectTexts({{1e-5, "0.00001"},
               {1e-15, "0.000000000000001"},
               {1.25e-13, "0.000000000000125"},
               {-0.000000000012345, "-0.000000000012345"}});
}

TEST(NumberToText, WritesAnExponentFromSixteenDecimals) {
  expectTexts({{1e-16, "1E-16"},
               {1.5e-10 / 1e6, "1.5E-16"},
               {1.25e-14, "1.25E-14"},
               {1e-5 / 3, "3.33333333333333E-06"},
               {0.1 / 3, "3.33333333333333E-02"},
               {-1e-5 / 3, "-3.33333333333333E-06"},
               {1.23456789012345e-9, "1.23456789012345E-09"},
               {1.23456789012345e-10, "1.23456789012345E-10"},
               {1.5e-100, "1.5E-100"},
               {1.5e-10, "0.00000000015"}});
}

TEST(NumberToText, CarriesThroughNines) {
  expectTexts({{9.9999999999999995, "10"},
               {0.99999999999999994, "1"},
               {99999999999999.99, "100000000000000"}});
}

TEST(NumberToText, WritesTheLimitsOfTheRange) {
  expectTexts({{Double::denorm_min(), "4.94065645841247E-324"},
               {Double::min(), "2.2250738585072E-308"},
               {Double::max(), "1.79769313486232E+308"},
               {Double::lowest(), "-1.79769313486232E+308"}});
}

TEST(NumberToText, RoundTripsToFifteenDigits) {
  std::mt19937_64 random(1);
  std::uniform_real_distribution<double> exponent(-307, 307);
  // Half a unit of the fifteenth digit, plus the rounding of reading and dividing.
  constexpr double kBound = 5e-15 + 2 * Double::epsilon();
  for (int i = 0; i < 20000; ++i) {
    const double value = std::pow(10, exponent(random)) * (i % 2 ? -1 : 1);
    const std::string text = toText(value);
    const double back = toNumber(text);
    EXPECT_LE(std::abs(back / value - 1), kBound) << text;
    EXPECT_EQ(toText(back), text);
  }
}

TEST(NumberToText, RoundTripsTypedNumbers) {
  std::mt19937_64 random(2);
  std::uniform_int_distribution<long long> cents(1, 99999999999999);
  for (int i = 0; i < 20000; ++i) {
    const long long amount = cents(random);
    std::string text = std::to_string(amount / 100);
    if (amount % 100) {
      text += "." + std::to_string(amount % 100 + 100).substr(1);
      if (text.back() == '0') text.pop_back();
    }
    EXPECT_EQ(toText(toNumber(text)), text);
  }
}

TEST(NumberDigits, HaveNoLeadingOrTrailingZeros) {
  const Decimal number = toDigits(-1250);
  EXPECT_EQ(number.digits, "125");
  EXPECT_EQ(number.point, 4);
  EXPECT_EQ(toDigits(0.00125).digits, "125");
  EXPECT_EQ(toDigits(0.00125).point, -2);
  EXPECT_EQ(toDigits(9.9999999999999995).digits, "1");
  EXPECT_EQ(toDigits(9.9999999999999995).point, 2);
}

TEST(NumberDigits, AreEmptyForZero) {
  for (const double zero : {0.0, -0.0}) EXPECT_EQ(toDigits(zero).digits, "");
}

TEST(HasOddCommas, FindsCommasThatDoNotSeparateThousands) {
  for (const char* text : {"12,50", "1,23", "1,2345", "1234,567", "5,", ",500", "1,,234", "-1,23",
                           "$7,5", "(1,2)", "7,5 ", "1,234,56.7", "1,2E3", "0,5"})
    EXPECT_TRUE(hasOddCommas(text)) << text;
}

TEST(HasOddCommas, AcceptsThousandsSeparators) {
  for (const char* text : {"1,234.50", "1234.50", "-12,345", "123,456,789", "$ 1,234.50", "(1,234)",
                           "1,000E3", ".5", "0"})
    EXPECT_FALSE(hasOddCommas(text)) << text;
}

TEST(HasOddCommas, IsFalseForNonNumericText) {
  for (const char* text : {"", "abc", ",", "1,23x", "1.5,6", "7,5\r\n"})
    EXPECT_FALSE(hasOddCommas(text)) << text;
}

}  // namespace
}  // namespace common
