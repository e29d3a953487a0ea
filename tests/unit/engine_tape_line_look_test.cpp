#include "engine/tape_line_look.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "engine/tape_line.h"

namespace engine {
namespace {

using controls::LineLook;

struct Case {
  const char* whatAUserSees;
  std::string line;
  LineLook look;
};

TEST(TapeLineLook, TellsAmountsTotalsAndNotesApart) {
  const std::vector<Case> cases = {
      {"an amount added", "1,234.50 + ", LineLook::Amount},
      {"an amount added, padded", "               1,234.50 + ", LineLook::Amount},
      {"an amount taken off", "3.00 - ", LineLook::TakenOff},
      {"an amount taken off, padded", "                   3.00 - ", LineLook::TakenOff},
      {"a negative amount added", "-3.00 + ", LineLook::TakenOff},
      {"a negative amount taken off", "-3.00 - ", LineLook::Amount},
      {"a first operand", "12.00   ", LineLook::Amount},
      {"a negative first operand", "-12.00   ", LineLook::TakenOff},
      {"a factor", "12.00 X ", LineLook::Amount},
      {"a divisor", "12.00 / ", LineLook::Amount},
      {"a radicand", "16.00 S ", LineLook::Amount},
      {"a total", "1,231.50 * ", LineLook::Total},
      {"a negative total", "-1,231.50 * ", LineLook::NegativeTotal},
      {"a total with an exponent", "1.5E+20 * ", LineLook::Total},
      {"an amount with a note behind it", "12.00 - rent", LineLook::TakenOff},
      {"a result of a record", "30  Years", LineLook::Note},
      {"a line end that was trimmed", "12.00 +", LineLook::Amount},
      {"the header", tapeHeader(false), LineLook::Note},
      {"the padded header", tapeHeader(true), LineLook::Note},
      {"a separator", tapeSeparator(true), LineLook::Note},
      {"an empty line", "", LineLook::Note},
      {"an error", "Error: divide by zero.", LineLook::Note},
      {"a term of a record", "30 Years                  ", LineLook::Note},
      {"money of a record", "$ 1,234.00                ", LineLook::Note},
      {"a caption of a record", "     Monthly Payment =", LineLook::Note},
      {"words", "for the garage", LineLook::Note},
      {"a number alone", "12.00", LineLook::Note},
      {"a number of things", "12 apples", LineLook::Note},
  };
  for (const Case& each : cases)
    EXPECT_EQ(tapeLineLook(each.line), each.look) << each.whatAUserSees;
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
