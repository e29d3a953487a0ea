#include "engine/tape_line_style.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "engine/tape_line.h"

namespace engine {
namespace {

using controls::LineStyle;

struct StyleCase {
  const char* whatAUserSees;
  std::string line;
  LineStyle look;
};

TEST(TapeLineStyle, TellsAmountsTotalsAndNotesApart) {
  const std::vector<StyleCase> cases = {
      {"an amount added", "1,234.50 + ", LineStyle::Amount},
      {"an amount added, padded", "               1,234.50 + ", LineStyle::Amount},
      {"an amount taken off", "3.00 - ", LineStyle::TakenOff},
      {"an amount taken off, padded", "                   3.00 - ", LineStyle::TakenOff},
      {"a negative amount added", "-3.00 + ", LineStyle::TakenOff},
      {"a negative amount taken off", "-3.00 - ", LineStyle::Amount},
      {"a first operand", "12.00   ", LineStyle::Amount},
      {"a negative first operand", "-12.00   ", LineStyle::TakenOff},
      {"a factor", "12.00 X ", LineStyle::Amount},
      {"a divisor", "12.00 / ", LineStyle::Amount},
      {"a radicand", "16.00 S ", LineStyle::Amount},
      {"a total", "1,231.50 * ", LineStyle::Total},
      {"a negative total", "-1,231.50 * ", LineStyle::NegativeTotal},
      {"a total with an exponent", "1.5E+20 * ", LineStyle::Total},
      {"an amount with a note behind it", "12.00 - rent", LineStyle::TakenOff},
      {"a result of a record", "30  Years", LineStyle::Note},
      {"a line end that was trimmed", "12.00 +", LineStyle::Amount},
      {"the header", tapeHeader(false), LineStyle::Note},
      {"the padded header", tapeHeader(true), LineStyle::Note},
      {"a separator", tapeSeparator(true), LineStyle::Note},
      {"an empty line", "", LineStyle::Note},
      {"an error", "Error: divide by zero.", LineStyle::Note},
      {"a term of a record", "30 Years                  ", LineStyle::Note},
      {"money of a record", "$ 1,234.00                ", LineStyle::Note},
      {"a caption of a record", "     Monthly Payment =", LineStyle::Note},
      {"words", "for the garage", LineStyle::Note},
      {"a number alone", "12.00", LineStyle::Note},
      {"a number and a blank", "12.00 ", LineStyle::Note},
      {"a number and a letter", "12.00 x ", LineStyle::Note},
      {"a date", "12.05.26 + ", LineStyle::Note},
      {"a number of things", "12 apples", LineStyle::Note},
  };
  for (const StyleCase& each : cases)
    EXPECT_EQ(tapeLineStyle(each.line), each.look) << each.whatAUserSees;
}

TEST(SpokenTapeLine, SaysAnAmountAndItsSymbolInWords) {
  EXPECT_EQ(spokenTapeLine("12.50 + "), "12.50 plus");
  EXPECT_EQ(spokenTapeLine("                  12.50 - "), "12.50 minus");
  EXPECT_EQ(spokenTapeLine("3 X "), "3 times");
  EXPECT_EQ(spokenTapeLine("3 / "), "3 divided by");
  EXPECT_EQ(spokenTapeLine("16 S "), "16 square root");
  EXPECT_EQ(spokenTapeLine("12.00   "), "12.00");
  EXPECT_EQ(spokenTapeLine("1,592.45 * "), "total 1,592.45");
  EXPECT_EQ(spokenTapeLine("-5.00 * "), "total -5.00");
  EXPECT_EQ(spokenTapeLine("Error: divide by zero."), "Error: divide by zero.");
  EXPECT_EQ(spokenTapeLine("Annuity Calculation:      "), "");
  EXPECT_EQ(spokenTapeLine(""), "");
}

}  // namespace
}  // namespace engine
