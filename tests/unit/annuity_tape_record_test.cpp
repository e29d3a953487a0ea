#include "annuity/tape_record.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using annuity::answerOnTape;
using annuity::moneyOnTape;
using annuity::rateOnTape;
using annuity::tapeRecord;
using annuity::termOnTape;

const std::string kHeader = "\r\nAnnuity Calculation:      ";
const std::string kAnswer =
    "\r\n        Monthly Payment  ="
    "\r\n$ 699.21                  \r\n";

std::string recordWith(const std::string& caption, const std::string& value) {
  return tapeRecord({{caption, value}}, {"Monthly Payment equals:", "$ 699.21 "});
}

TEST(TapeRecord, AlignsCaptionsRightAndValuesLeft) {
  EXPECT_EQ(tapeRecord({{"Length of &Time:", termOnTape("360", true)},
                        {"Annual Interest &Rate:", rateOnTape("0.085")},
                        {"&Loan Amount:", moneyOnTape("150,000")},
                        {"&Balloon Payment:", moneyOnTape("0")}},
                       {"Monthly Payment equals:", answerOnTape("$ 422.02")}),
            "\r\nAnnuity Calculation:      "
            "\r\n           Length of Time:"
            "\r\n360 Months                "
            "\r\n     Annual Interest Rate:"
            "\r\n% 8.50                    "
            "\r\n              Loan Amount:"
            "\r\n$ 150,000.00              "
            "\r\n          Balloon Payment:"
            "\r\n$ 0.00                    "
            "\r\n        Monthly Payment  ="
            "\r\n$ 422.02                  "
            "\r\n");
}

TEST(TapeRecord, ListsFiveFieldsAndTheAnswer) {
  EXPECT_EQ(tapeRecord({{"&Term:", termOnTape("30", false)},
                        {"Annual Interest &Rate:", rateOnTape("8.5")},
                        {"Monthly P&ayment:", moneyOnTape("-1250")},
                        {"&Present Value:", moneyOnTape("162,567.05")},
                        {"&Future Value:", moneyOnTape("0")}},
                       {"PV or Loan Amount equals:", answerOnTape("$ 162,567.05")}),
            "\r\nAnnuity Calculation:      "
            "\r\n                     Term:"
            "\r\n30 Years                  "
            "\r\n     Annual Interest Rate:"
            "\r\n% 850.00                  "
            "\r\n          Monthly Payment:"
            "\r\n-$ 1,250.00               "
            "\r\n            Present Value:"
            "\r\n$ 162,567.05              "
            "\r\n             Future Value:"
            "\r\n$ 0.00                    "
            "\r\n      PV or Loan Amount  ="
            "\r\n$ 162,567.05              "
            "\r\n");
}

TEST(TapeRecord, WithoutFieldsHasOnlyTheAnswer) {
  EXPECT_EQ(tapeRecord({}, {"Answer:", answerOnTape("")}),
            kHeader +
                "\r\n                   Answer:"
                "\r\n                          \r\n");
}

TEST(TapeRecord, DropsTheAccessKeyMarker) {
  EXPECT_EQ(recordWith("&Term:", "1 "),
            kHeader + "\r\n                     Term:\r\n1                         " + kAnswer);
  EXPECT_EQ(recordWith("Monthly P&ayment:", "1 "),
            kHeader + "\r\n          Monthly Payment:\r\n1                         " + kAnswer);
  EXPECT_EQ(recordWith("Profit && Loss:", "1 "),
            kHeader + "\r\n            Profit & Loss:\r\n1                         " + kAnswer);
}

TEST(TapeRecord, KeepsACaptionWithAnEqualsSign) {
  EXPECT_EQ(tapeRecord({}, {"Dollars Invested Today =", "$ 1.00 "}),
            kHeader + "\r\n  Dollars Invested Today =\r\n$ 1.00                    \r\n");
}

TEST(TapeRecord, DoesNotTruncateLongTexts) {
  const std::string caption = "A caption of more than 26 characters:";
  const std::string value = "a value of more than 26 characters ";
  EXPECT_EQ(recordWith(caption, value), kHeader + "\r\n" + caption + "\r\n" + value + kAnswer);
}

TEST(TapeRecord, CountsCharactersNotBytes) {
  EXPECT_EQ(recordWith("\u00E9:", "\u00E9 "), kHeader + "\r\n" + std::string(24, ' ') +
                                                  "\u00E9:\r\n\u00E9 " + std::string(24, ' ') +
                                                  kAnswer);
}

TEST(TapeRecord, PadsATwoLineAnswerAsOneText) {
  EXPECT_EQ(tapeRecord({}, {"Term equals:", answerOnTape("30  Years\r\n0  Months")}),
            kHeader + "\r\n                   Term  =\r\n30  Years\r\n0  Months      \r\n");
}

TEST(TermOnTape, NamesItsUnit) {
  EXPECT_EQ(termOnTape("360", true), "360 Months ");
  EXPECT_EQ(termOnTape("30", false), "30 Years ");
  EXPECT_EQ(termOnTape("abc", false), "abc Years ");
}

TEST(RateOnTape, IsMultipliedBy100) {
  EXPECT_EQ(rateOnTape("8.5"), "% 850.00 ");
  EXPECT_EQ(rateOnTape("0.085"), "% 8.50 ");
  EXPECT_EQ(rateOnTape("0.0712345"), "% 7.1235 ");
  EXPECT_EQ(rateOnTape("0"), "% .00 ");
  EXPECT_EQ(rateOnTape("-1"), "-% 100.00 ");
  EXPECT_EQ(rateOnTape("abc"), "abc ");
}

TEST(MoneyOnTape, IsWrittenInDollars) {
  EXPECT_EQ(moneyOnTape("150,000"), "$ 150,000.00 ");
  EXPECT_EQ(moneyOnTape("-1250"), "-$ 1,250.00 ");
  EXPECT_EQ(moneyOnTape("0"), "$ 0.00 ");
  EXPECT_EQ(moneyOnTape("1234.567"), "$ 1,234.57 ");
  EXPECT_EQ(moneyOnTape("abc"), "abc");
}

}  // namespace
