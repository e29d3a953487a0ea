#include "annuity/answer_text.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

using annuity::annuityErrorText;
using annuity::moneyAnswer;
using annuity::rateAnswer;
using annuity::termInMonths;
using annuity::termInYears;

struct AnswerCase {
  std::string_view name;
  double value;
  std::string_view text;
};

std::string nameOf(const testing::TestParamInfo<AnswerCase>& row) {
  return std::string(row.param.name);
}

class MoneyAnswer : public testing::TestWithParam<AnswerCase> {};

TEST_P(MoneyAnswer, Reads) {
  EXPECT_EQ(moneyAnswer(GetParam().value), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Amounts, MoneyAnswer,
    testing::Values(AnswerCase{"IsRoundedToCents", 699.2145085527766, "$ 699.21"},
                    AnswerCase{"HasALeadingSign", -1234.5, "-$ 1,234.50"},
                    AnswerCase{"Zero", 0, "$ 0.00"}, AnswerCase{"RoundsToZero", -0.004, "$ 0.00"},
                    AnswerCase{"BelowOne", 0.5, "$ 0.50"},
                    AnswerCase{"RoundsHalfAwayFromZero", 1.005, "$ 1.01"},
                    AnswerCase{"RoundsHalfAwayFromZeroBelowIt", -1.005, "-$ 1.01"},
                    AnswerCase{"IsGrouped", 1234567890.12, "$ 1,234,567,890.12"},
                    AnswerCase{"BeyondThePattern", 1e15, "$ 1,000,000,000,000,000.00"}),
    nameOf);

class RateAnswer : public testing::TestWithParam<AnswerCase> {};

TEST_P(RateAnswer, Reads) {
  EXPECT_EQ(rateAnswer(GetParam().value), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Rates, RateAnswer,
                         testing::Values(AnswerCase{"WithTwoDecimals", 0.0725, "7.25 %"},
                                         AnswerCase{"WithFiveDecimals", 0.0712345, "7.12345 %"},
                                         AnswerCase{"WithThreeDecimals", 0.07125, "7.125 %"},
                                         AnswerCase{"IsRoundedToFive", 0.07499934, "7.49993 %"},
                                         AnswerCase{"Zero", 0, "0.00 %"},
                                         AnswerCase{"TooSmallToShow", -1e-9, "0.00 %"},
                                         AnswerCase{"BelowZero", -0.05, "-5.00 %"},
                                         AnswerCase{"AboveAHundred", 12.345, "1234.50 %"}),
                         nameOf);

class TermInMonths : public testing::TestWithParam<AnswerCase> {};

TEST_P(TermInMonths, Reads) {
  EXPECT_EQ(termInMonths(GetParam().value), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Terms, TermInMonths,
    testing::Values(AnswerCase{"Whole", 360, "360  Months"}, AnswerCase{"One", 1, "1  Month"},
                    AnswerCase{"Zero", 0, "0  Months"},
                    AnswerCase{"Fractional", 1.5, "1.5  Months"},
                    AnswerCase{"RoundedToTwoDecimals", 359.721, "359.72  Months"},
                    AnswerCase{"AlmostWholeKeepsThePoint", 359.999, "360.  Months"},
                    AnswerCase{"AlmostOneIsPlural", 1.0001, "1.  Months"},
                    AnswerCase{"WholeExceptForTheLastDigit", 360.0000000000001, "360  Months"},
                    AnswerCase{"OneExceptForTheLastDigit", 1.0000000000000002, "1  Month"},
                    AnswerCase{"BelowZero", -5.5, "-5.5  Months"},
                    AnswerCase{"InThousandsWithoutSeparators", 12345, "12345  Months"}),
    nameOf);

class TermInYears : public testing::TestWithParam<AnswerCase> {};

TEST_P(TermInYears, Reads) {
  EXPECT_EQ(termInYears(GetParam().value), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Terms, TermInYears,
    testing::Values(
        AnswerCase{"Whole", 360, "30  Years\r\n0  Months"},
        AnswerCase{"One", 12, "1  Year\r\n0  Months"},
        AnswerCase{"OneAndAMonth", 13, "1  Year\r\n1  Month"},
        AnswerCase{"LessThanOne", 1, "0  Years\r\n1  Month"},
        AnswerCase{"Fractional", 359.88, "29  Years\r\n11.88  Months"},
        AnswerCase{"HalfAMonthIsPlural", 24.5, "2  Years\r\n0.5  Months"},
        AnswerCase{"MonthsAreNotCarried", 359.9999999999999, "29  Years\r\n12  Months"},
        AnswerCase{"MonthsAreNotCarriedNearAWholeYear", 359.997, "29  Years\r\n12  Months"},
        AnswerCase{"FractionalFurtherFromAWholeYear", 359.99, "29  Years\r\n11.99  Months"},
        AnswerCase{"AlmostOneMonthIsOneMonth", 12.997, "1  Year\r\n1  Month"},
        AnswerCase{"JustBelowOneMonth", 12.99, "1  Year\r\n0.99  Months"},
        AnswerCase{"JustAboveOneMonthIsPlural", 13.003, "1  Year\r\n1  Months"},
        AnswerCase{"AboveOneMonthHasDecimals", 13.006, "1  Year\r\n1.01  Months"},
        AnswerCase{"TooSmallForADecimal", 12.003, "1  Year\r\n0  Months"},
        AnswerCase{"LowerLimitOfAWholeMonth", 0.995, "0  Years\r\n1  Months"},
        AnswerCase{"UpperLimitOfZeroMonths", 0.004, "0  Years\r\n0  Months"},
        AnswerCase{"AboveThatLimitKeepsThePoint", 0.0045, "0  Years\r\n0.  Months"},
        AnswerCase{"BelowZero", -5.5, "-1  Years\r\n6.5  Months"}),
    nameOf);

constexpr std::string_view kNotObtainable =
    "\rThe answer is not obtainable using the current variables, try adjusting one or more of the "
    "numbers significantly.";

TEST(AnnuityErrorText, ArithmeticErrorAdvisesOtherNumbers) {
  EXPECT_EQ(annuityErrorText(5, false),
            "Error:5 Invalid procedure call or argument" + std::string(kNotObtainable));
  EXPECT_EQ(annuityErrorText(6, false), "Error:6 Overflow" + std::string(kNotObtainable));
}

TEST(AnnuityErrorText, ArithmeticErrorIsBriefWhileAnAnswerShows) {
  EXPECT_EQ(annuityErrorText(5, true), "Error:5 Invalid procedure call or argument");
  EXPECT_EQ(annuityErrorText(6, true), "Error:6 Overflow");
}

TEST(AnnuityErrorText, TypeMismatchIsBrief) {
  EXPECT_EQ(annuityErrorText(13, false), "Error:13 Type mismatch");
  EXPECT_EQ(annuityErrorText(13, true), "Error:13 Type mismatch");
}

TEST(AnnuityErrorText, UnusableWindowAdvisesReopening) {
  for (const int number : {3020, 3021})
    for (const bool answerShown : {false, true})
      EXPECT_EQ(annuityErrorText(number, answerShown),
                "Error:" + std::to_string(number) +
                    " Application-defined or object-defined error"
                    "\rPlease close this window and reload this form.");
}

}  // namespace
