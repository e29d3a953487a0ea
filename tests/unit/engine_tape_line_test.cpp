#include "engine/tape_line.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace engine {
namespace {

constexpr bool kPadded = true;
constexpr bool kPlain = false;
constexpr bool kFloating = true;
constexpr bool kFixed = false;

struct Case {
  const char* whatAUserSees;
  const char* amount;
  const char* symbol;
  bool padded;
  bool floating;
  const char* line;
};

TEST(TapeLine, OfAnAmountAndItsSymbol) {
  const std::vector<Case> cases = {
      {"an amount added", "1,234.50", "+", kPlain, kFixed, "1,234.50 + "},
      {"an amount taken off", "3.00", "-", kPlain, kFixed, "3.00 - "},
      {"a total", "1,231.50", "*", kPlain, kFixed, "1,231.50 * "},
      {"the first number of a calculation", "12.00", " ", kPlain, kFixed, "12.00   "},
      {"an amount as typed", "0.5", "+", kPlain, kFloating, "0.5 + "},
      {"an amount added, padded", "1,234.50", "+", kPadded, kFixed, "               1,234.50 + "},
      {"an amount taken off, padded", "3.00", "-", kPadded, kFixed, "                   3.00 - "},
      {"a total, padded", "1,231.50", "*", kPadded, kFixed, "               1,231.50 * "},
      {"an amount as typed, padded", "0.5", "+", kPadded, kFloating, "                    0.5 + "},
      {"a line that just fits", "123,456,789,012,345.123", "+", kPadded, kFixed,
       "123,456,789,012,345.123 + "},
      {"a line that is too long is printed whole", "999,999,999,999,999.000000000", "+", kPadded,
       kFixed, "999,999,999,999,999.000000000 + "},
      {"one as typed begins with its blank", "12,345,678,901,234.56789", "+", kPadded, kFloating,
       " 12,345,678,901,234.56789 + "},
  };
  for (const Case& each : cases)
    EXPECT_EQ(tapeLine(each.amount, each.symbol, each.padded, each.floating), each.line)
        << each.whatAUserSees;
}

TEST(TapeLine, HeaderStandsAtTheRightOrAtBothEdges) {
  EXPECT_EQ(tapeHeader(kPlain), "Top");
  EXPECT_EQ(tapeHeader(kPadded), "Top                    Top");
  EXPECT_EQ(tapeHeader(kPadded).size(), static_cast<std::size_t>(kTapeWidth));
}

TEST(TapeLine, SeparatorIsEmptyOrBlank) {
  EXPECT_EQ(tapeSeparator(kPlain), "");
  EXPECT_EQ(tapeSeparator(kPadded), std::string(26, ' '));
}

}  // namespace
}  // namespace engine
