#include "annuity/answer_text.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>

namespace {

using annuity::annuityErrorText;
using annuity::moneyAnswer;
using annuity::rateAnswer;
using annuity::termInMonths;
using annuity::termInYears;

struct Row {
  std::string_view name;
  double value;
  std::string_view text;
};

std::string nameOf(const testing::TestParamInfo<Row>& row) {
  return std::string(row.param.name);
}

class MoneyAnswer : public testing::TestWithParam<Row> {};

TEST_P(MoneyAnswer, Reads) {
  EXPECT_EQ(moneyAnswer(GetParam().value), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Amounts, MoneyAnswer,
    testing::Values(Row{"IsRoundedToCents", 699.2145085527766, "$ 699.21"},
                    Row{"HasItsSignInFront", -1234.5, "-$ 1,234.50"}, Row{"OfNothing", 0, "$ 0.00"},
                    Row{"ThatRoundsToNothing", -0.004, "$ 0.00"}, Row{"BelowOne", 0.5, "$ 0.50"},
                    Row{"RoundsHalfAwayFromZero", 1.005, "$ 1.01"},
                    Row{"RoundsHalfAwayFromZeroBelowIt", -1.005, "-$ 1.01"},
                    Row{"IsGrouped", 1234567890.12, "$ 1,234,567,890.12"},
                    Row{"BeyondThePattern", 1e15, "$ 1,000,000,000,000,000.00"}),
    nameOf);

class RateAnswer : public testing::TestWithParam<Row> {};

TEST_P(RateAnswer, Reads) {
  EXPECT_EQ(rateAnswer(GetParam().value), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Rates, RateAnswer,
                         testing::Values(Row{"WithTwoDecimals", 0.0725, "7.25 %"},
                                         Row{"WithFiveDecimals", 0.0712345, "7.12345 %"},
                                         Row{"WithThreeDecimals", 0.07125, "7.125 %"},
                                         Row{"IsRoundedToFive", 0.07499934, "7.49993 %"},
                                         Row{"OfNothing", 0, "0.00 %"},
                                         Row{"TooSmallToShow", -1e-9, "0.00 %"},
                                         Row{"BelowZero", -0.05, "-5.00 %"},
                                         Row{"AboveAHundred", 12.345, "1234.50 %"}),
                         nameOf);

class TermInMonths : public testing::TestWithParam<Row> {};

TEST_P(TermInMonths, Reads) {
  EXPECT_EQ(termInMonths(GetParam().value), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Terms, TermInMonths,
    testing::Values(Row{"Whole", 360, "360  Months"}, Row{"One", 1, "1  Month"},
                    Row{"Nothing", 0, "0  Months"}, Row{"Broken", 1.5, "1.5  Months"},
                    Row{"BrokenToTwoDecimals", 359.721, "359.72  Months"},
                    Row{"NearlyWholeKeepsItsPoint", 359.999, "360.  Months"},
                    Row{"NearlyOneIsNotOne", 1.0001, "1.  Months"},
                    Row{"WholeButForTheLastDigit", 360.0000000000001, "360  Months"},
                    Row{"OneButForTheLastDigit", 1.0000000000000002, "1  Month"},
                    Row{"BelowZero", -5.5, "-5.5  Months"},
                    Row{"InThousandsWithoutSeparators", 12345, "12345  Months"}),
    nameOf);

class TermInYears : public testing::TestWithParam<Row> {};

TEST_P(TermInYears, Reads) {
  EXPECT_EQ(termInYears(GetParam().value), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Terms, TermInYears,
    testing::Values(Row{"Whole", 360, "30  Years\r\n0  Months"},
                    Row{"One", 12, "1  Year\r\n0  Months"},
                    Row{"OneAndAMonth", 13, "1  Year\r\n1  Month"},
                    Row{"LessThanOne", 1, "0  Years\r\n1  Month"},
                    Row{"Broken", 359.88, "29  Years\r\n11.88  Months"},
                    Row{"HalfAMonthIsMonths", 24.5, "2  Years\r\n0.5  Months"},
                    Row{"IsNotCarried", 359.9999999999999, "29  Years\r\n12  Months"},
                    Row{"IsNotCarriedNearAWholeYear", 359.997, "29  Years\r\n12  Months"},
                    Row{"IsBrokenFurtherFromAWholeYear", 359.99, "29  Years\r\n11.99  Months"},
                    Row{"AlmostAMonthIsAMonth", 12.997, "1  Year\r\n1  Month"},
                    Row{"TooLittleForAMonth", 12.99, "1  Year\r\n0.99  Months"},
                    Row{"AMonthAndTooLittleMore", 13.003, "1  Year\r\n1  Months"},
                    Row{"AMonthAndMore", 13.006, "1  Year\r\n1.01  Months"},
                    Row{"TooLittleForADecimal", 12.003, "1  Year\r\n0  Months"},
                    Row{"ExactlyAlmostAMonth", 0.995, "0  Years\r\n1  Months"},
                    Row{"ExactlyTooLittleForADecimal", 0.004, "0  Years\r\n0  Months"},
                    Row{"MoreThanTooLittleKeepsItsPoint", 0.0045, "0  Years\r\n0.  Months"},
                    Row{"BelowZero", -5.5, "-1  Years\r\n6.5  Months"}),
    nameOf);

constexpr std::string_view kNotObtainable =
    "\rThe answer is not obtainable using the current variables, try adjusting one or more of the "
    "numbers significantly.";

TEST(AnnuityErrorText, OfTheArithmeticSaysThatThereIsNoAnswer) {
  EXPECT_EQ(annuityErrorText(5, false),
            "Error:5 Invalid procedure call or argument" + std::string(kNotObtainable));
  EXPECT_EQ(annuityErrorText(6, false), "Error:6 Overflow" + std::string(kNotObtainable));
}

TEST(AnnuityErrorText, OfTheArithmeticIsPlainWhileAnAnswerIsShown) {
  EXPECT_EQ(annuityErrorText(5, true), "Error:5 Invalid procedure call or argument");
  EXPECT_EQ(annuityErrorText(6, true), "Error:6 Overflow");
}

TEST(AnnuityErrorText, OfATextIsPlain) {
  EXPECT_EQ(annuityErrorText(13, false), "Error:13 Type mismatch");
  EXPECT_EQ(annuityErrorText(13, true), "Error:13 Type mismatch");
}

TEST(AnnuityErrorText, OfLostDataAsksForAFreshWindow) {
  for (const int number : {3020, 3021})
    for (const bool answerShown : {false, true})
      EXPECT_EQ(annuityErrorText(number, answerShown),
                "Error:" + std::to_string(number) +
                    " Application-defined or object-defined error"
                    "\rPlease close this window and reload this form.");
}

}  // namespace
