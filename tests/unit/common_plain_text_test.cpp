#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "common/number_text.h"

namespace common {
namespace {

void expectPlain(const std::vector<std::pair<std::string, std::string>>& texts) {
  for (const auto& [text, plain] : texts) {
    SCOPED_TRACE(testing::PrintToString(text));
    EXPECT_EQ(toPlainText(text), plain);
  }
}

TEST(PlainText, PlainNumberIsUnchanged) {
  expectPlain({{"5", "5"},
               {"-5", "-5"},
               {"+5", "+5"},
               {"1,2,34.50", "1,2,34.50"},
               {"5.", "5."},
               {"-0.00", "-0.00"},
               {"007", "007"},
               {",5", ",5"},
               {"0.0000000000000000001", "0.0000000000000000001"}});
}

TEST(PlainText, HasALeadingSign) {
  expectPlain({{"12.34-", "-12.34"},
               {"12.345-", "-12.345"},
               {"($1,234.567)", "-1,234.567"},
               {"(5)", "-5"},
               {"$-5", "-5"},
               {"$+5", "+5"},
               {"-$ 1,250.00 ", "-1,250.00"}});
}

TEST(PlainText, HasNoDollarSignAndNoBlanks) {
  expectPlain({{"$ 1,250.00 ", "1,250.00"}, {"$5.", "5."}, {" 5 ", "5"}, {"\t-5", "-5"}});
}

TEST(PlainText, HasADigitBeforeThePoint) {
  expectPlain(
      {{".5", "0.5"}, {"-.55", "-0.55"}, {"(.5)", "-0.5"}, {".5-", "-0.5"}, {"$.50", "0.50"}});
}

TEST(PlainText, HasNoExponent) {
  expectPlain({{"1.23456E+3", "1234.56"},
               {"1.5E-10", "0.00000000015"},
               {"1.5E+16", "15000000000000000"},
               {"1E0", "1"},
               {"1.E0", "1"},
               {"1.50E1", "15.0"},
               {"0.05E1", "0.5"},
               {"1,234.5E+1", "12345"},
               {"-1,234.5e-2", "-12.345"},
               {"$1E3", "1000"},
               {"(1E-2)", "-0.01"},
               {".5E1", "5"}});
}

TEST(PlainText, TinyNumberBecomesASignedZero) {
  expectPlain({{"1E-999", "0"},
               {"-1E-999", "-0"},
               {"0E999999999999999999", "0"},
               {"1E-999999999999999999", "0"},
               {"0.00E5", "0"}});
}

TEST(PlainText, KeepsTheValue) {
  for (const char* text : {"1.23456E+3", "1.7976931348623157E308", "4.9E-324", "($1,234.567)",
                           "123456.789E-3", "000.00012E-5", "1,2,3E2"}) {
    SCOPED_TRACE(text);
    EXPECT_EQ(toNumber(toPlainText(text).value()), toNumber(text));
  }
}

}  // namespace
}  // namespace common
