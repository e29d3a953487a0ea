#include "engine/calculation.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "common/run_time_error.h"

namespace engine {
namespace {

// The outcome as text: the mark, the number of the error, or the reason.
std::string told(const Outcome& outcome) {
  if (const auto* refusal = std::get_if<Refusal>(&outcome)) return std::to_string(refusal->error);
  if (const auto* failure = std::get_if<Failure>(&outcome)) return std::string(failure->reason);
  constexpr std::string_view kMarks = " +-X/S*";
  const auto mark = static_cast<std::size_t>(std::get<TapeLine>(outcome).mark);
  return {kMarks.at(mark)};
}

struct Step {
  Amount amount;
  Operator key;
  std::string told;
  double total;
};

void expectSteps(const std::vector<Step>& steps, double largest,
                 Outcome (Calculation::*take)(const Amount&, Operator, double)) {
  Calculation calculation;
  for (const Step& step : steps) {
    EXPECT_EQ(told((calculation.*take)(step.amount, step.key, largest)), step.told);
    EXPECT_EQ(calculation.total(), step.total) << step.amount.text;
  }
}

TEST(Calculation, AddModeAddsAndSubtracts) {
  expectSteps({{{"12", 12}, Operator::Plus, "+", 12},
               {{"3", 3}, Operator::Minus, "-", 9},
               {{"0", 0}, Operator::Plus, "+", 9}},
              kLargestFixedTotal, &Calculation::add);
}

TEST(Calculation, CalculatorModeWorksFromLeftToRight) {
  expectSteps({{{"12", 12}, Operator::Plus, " ", 12},
               {{"3", 3}, Operator::Times, "+", 15},
               {{"2", 2}, Operator::Divide, "X", 30},
               {{"4", 4}, Operator::Minus, "/", 7.5},
               {{"0.5", 0.5}, Operator::Equals, "-", 7},
               {{"1", 1}, Operator::Root, "S", 1}},
              kLargestFixedTotal, &Calculation::calculate);
}

TEST(Calculation, DivisionByWrittenZerosIsRefusedAndByAPlainZeroFails) {
  expectSteps({{{"1", 1}, Operator::Divide, " ", 1},
               {{"0.00", 0}, Operator::Equals, "11", 1},
               {{"0", 0}, Operator::Equals, " divide by zero.", 1}},
              kLargestFixedTotal, &Calculation::calculate);
}

TEST(Calculation, RefusalKeepsThePendingOperator) {
  expectSteps({{{"1", 1}, Operator::Divide, " ", 1},
               {{"0.00", 0}, Operator::Plus, "11", 1},
               {{"4", 4}, Operator::Equals, "/", 0.25}},
              kLargestFixedTotal, &Calculation::calculate);
}

TEST(Calculation, RootOfANegativeNumberIsRefused) {
  expectSteps({{{"-4", -4}, Operator::Root, "5", 0}}, kLargestFixedTotal, &Calculation::calculate);
}

TEST(Calculation, OverflowIsRefused) {
  const std::vector<Step> steps = {{{"1E308", 1e308}, Operator::Plus, "+", 1e308},
                                   {{"1E308", 1e308}, Operator::Plus, "6", 1e308}};
  expectSteps(steps, kLargestFloatingTotal, &Calculation::add);
  expectSteps(
      {{{"1E308", 1e308}, Operator::Times, " ", 1e308}, {{"10", 10}, Operator::Equals, "6", 1e308}},
      kLargestFloatingTotal, &Calculation::calculate);
}

TEST(Calculation, TotalOfMoreThanFifteenDigitsFailsUnlessTheDecimalFloats) {
  const Amount most = {"999999999999999", 999'999'999'999'999};
  for (const auto take : {&Calculation::add, &Calculation::calculate}) {
    Calculation fixed;
    EXPECT_NE(told((fixed.*take)(most, Operator::Minus, kLargestFixedTotal)), " result too large");
    Calculation floating;
    const Amount more = {"1E+15", 1e15};
    EXPECT_NE(told((floating.*take)(more, Operator::Plus, kLargestFloatingTotal)),
              " result too large");
    Calculation tooLarge;
    EXPECT_EQ(told((tooLarge.*take)(more, Operator::Plus, kLargestFixedTotal)),
              " result too large");
  }
}

TEST(Calculation, NegativeTotalHasTheSameLimit) {
  const Amount more = {"-1E+15", -1e15};
  Calculation calculation;
  EXPECT_EQ(told(calculation.add(more, Operator::Plus, kLargestFixedTotal)), " result too large");
}

TEST(Calculation, IsOpenFromTheFirstAmountToTheTotal) {
  Calculation calculation;
  EXPECT_FALSE(calculation.isOpen());
  calculation.calculate({"2", 2}, Operator::Times, kLargestFixedTotal);
  EXPECT_TRUE(calculation.isOpen());
  EXPECT_TRUE(calculation.operatorWaits());
  EXPECT_EQ(calculation.lastMark(), Mark::First);
  calculation.close();
  EXPECT_FALSE(calculation.isOpen());
  EXPECT_FALSE(calculation.operatorWaits());
  EXPECT_EQ(calculation.lastMark(), Mark::Total);
  EXPECT_EQ(calculation.total(), 2);
}

}  // namespace
}  // namespace engine
