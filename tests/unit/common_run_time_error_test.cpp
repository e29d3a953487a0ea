#include "common/run_time_error.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

namespace common {
namespace {

TEST(RunTimeErrorText, NamesTheError) {
  EXPECT_EQ(errorText(kInvalidProcedureCall), "Error:5 Invalid procedure call or argument");
  EXPECT_EQ(errorText(kOverflow), "Error:6 Overflow");
  EXPECT_EQ(errorText(kDivisionByZero), "Error:11 Division by zero");
  EXPECT_EQ(errorText(kTypeMismatch), "Error:13 Type mismatch");
}

TEST(RunTimeErrorText, HasAFallbackDescription) {
  EXPECT_EQ(errorText(4711), "Error:4711 Application-defined or object-defined error");
  for (const int number : {3020, 3021})
    EXPECT_EQ(errorText(number), "Error:" + std::to_string(number) +
                                     " Application-defined or object-defined error\r"
                                     "Please close this window and reload this form.");
}

TEST(RunTimeErrorText, IsShortWhereNothingTrapsTheError) {
  EXPECT_STREQ(RunTimeError(kOverflow).what(), "run-time error");
}

TEST(Trap, RunsABodyToItsEnd) {
  bool ended = false;
  EXPECT_TRUE(trap([&] { ended = true; }, [](const RunTimeError&) { FAIL(); }));
  EXPECT_TRUE(ended);
}

TEST(Trap, StopsAtTheErrorAndReportsItOnce) {
  bool ended = false;
  int reports = 0;
  int reported = 0;
  const bool ok = trap(
      [&] {
        if (!ended) throw RunTimeError(kTypeMismatch);
        ended = true;
      },
      [&](const RunTimeError& error) {
        ++reports;
        reported = error.number();
      });
  EXPECT_FALSE(ok);
  EXPECT_FALSE(ended);
  EXPECT_EQ(reports, 1);
  EXPECT_EQ(reported, 13);
}

TEST(Trap, LetsOtherExceptionsPass) {
  const auto report = [](const RunTimeError&) { FAIL(); };
  EXPECT_THROW(trap([] { throw std::logic_error("other"); }, report), std::logic_error);
}

TEST(Finite, ReturnsAFiniteNumber) {
  EXPECT_EQ(finite(-1.5e308), -1.5e308);
}

TEST(Finite, RaisesAnOverflowOtherwise) {
  for (const double value : {HUGE_VAL, -HUGE_VAL, std::nan("")}) {
    int raised = 0;
    trap([&] { finite(value); }, [&](const RunTimeError& error) { raised = error.number(); });
    EXPECT_EQ(raised, 6);
  }
}

}  // namespace
}  // namespace common
