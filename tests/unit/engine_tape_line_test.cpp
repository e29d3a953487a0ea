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

struct LineCase {
  const char* whatAUserSees;
  const char* amount;
  Mark mark;
  bool padded;
  bool floating;
  const char* line;
  int places = 2;
};

TEST(TapeLine, ShowsTheAmountAndItsMark) {
  const std::vector<LineCase> cases = {
      {"an amount added", "1,234.50", Mark::Plus, kPlain, kFixed, "1,234.50 + "},
      {"an amount taken off", "3.00", Mark::Minus, kPlain, kFixed, "3.00 - "},
      {"a total", "1,231.50", Mark::Total, kPlain, kFixed, "1,231.50 * "},
      {"the first number of a calculation", "12.00", Mark::First, kPlain, kFixed, "12.00   "},
      {"an amount as typed", "0.5", Mark::Plus, kPlain, kFloating, "0.5 + "},
      {"an amount added, padded", "1,234.50", Mark::Plus, kPadded, kFixed,
       "               1,234.50 + "},
      {"an amount taken off, padded", "3.00", Mark::Minus, kPadded, kFixed,
       "                   3.00 - "},
      {"a total, padded", "1,231.50", Mark::Total, kPadded, kFixed, "               1,231.50 * "},
      {"an amount as typed, padded", "0.5", Mark::Plus, kPadded, kFloating,
       "                    0.5 + "},
      {"an amount keyed without its decimals", "1,234.5", Mark::Plus, kPlain, kFixed,
       "1,234.50 + "},
      {"an amount rounded to the places", "1.006", Mark::Times, kPlain, kFixed, "1.01 X "},
      {"a whole amount without places", "12", Mark::Divide, kPlain, kFixed, "12 / ", 0},
      {"a number whose root is taken", "9", Mark::Root, kPlain, kFloating, "9 S "},
      {"a line that just fits", "999,999,999,999,999", Mark::Plus, kPadded, kFixed,
       "999,999,999,999,999.000 + ", 3},
      {"a line that is too long is printed whole", "999,999,999,999,999", Mark::Plus, kPadded,
       kFixed, "999,999,999,999,999.000000000 + ", 9},
      {"one as typed begins with its blank", "12,345,678,901,234.56789", Mark::Plus, kPadded,
       kFloating, " 12,345,678,901,234.56789 + "},
  };
  for (const LineCase& each : cases)
    EXPECT_EQ(tapeText({{each.amount, 0}, each.mark}, {each.padded, each.floating, each.places}),
              each.line)
        << each.whatAUserSees;
}

TEST(TapeLine, HeaderIsAtTheRightOrAtBothEdges) {
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
