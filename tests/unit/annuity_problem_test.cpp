#include "annuity/problem.h"

#include <gtest/gtest.h>

namespace annuity {
namespace {

using common::AnnuityKind;

// Term, rate, payment, present value, future value.
AnnuityProblem inMonths(PerQuantity<std::string> texts) {
  return {.texts = std::move(texts)};
}

Outcome solveAs(AnnuityKind kind, const AnnuityProblem& problem) {
  return solve(problem, configurationOf(kind));
}

Answer answerOf(const Outcome& outcome) {
  const auto* answer = std::get_if<Answer>(&outcome.result);
  return answer ? *answer : Answer{"none", "none"};
}

void expectAnswer(const Outcome& outcome, std::string_view text, std::string_view caption) {
  EXPECT_EQ(answerOf(outcome).text, text);
  EXPECT_EQ(answerOf(outcome).caption, caption);
}

void expectRefusal(const Outcome& outcome, Refusal refusal) {
  const auto* found = std::get_if<Refusal>(&outcome.result);
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(*found, refusal);
}

void expectError(const Outcome& outcome, int number) {
  const auto* error = std::get_if<common::RunTimeError>(&outcome.result);
  ASSERT_NE(error, nullptr);
  EXPECT_EQ(error->number(), number);
}

void expectPaymentWritten(const Outcome& outcome, std::string_view text) {
  ASSERT_EQ(outcome.written.size(), 1U);
  EXPECT_EQ(outcome.written[0].quantity, Quantity::Payment);
  EXPECT_EQ(outcome.written[0].text, text);
}

TEST(Solve, FindsTheBlankQuantity) {
  const auto loan = [](PerQuantity<std::string> texts) {
    return solveAs(AnnuityKind::Loan, inMonths(std::move(texts)));
  };
  expectAnswer(loan({"", "7.5", "699.21", "100,000", "0"}), "360.01  Months",
               "Length of Time equals:");
  expectAnswer(loan({"360", "", "699.21", "100,000", "0"}), "7.49993 %", "Interest Rate equals:");
  expectAnswer(loan({"360", "7.5", "", "100,000", "0"}), "$ 699.21", "Monthly Payment equals:");
  expectAnswer(loan({"360", "7.5", "699.21", "", "0"}), "$ 99,999.36", "Loan Amount equals:");
  expectAnswer(loan({"12", "0", "100", "1,300", ""}), "$ 100.00", "Balloon Payment equals:");
}

TEST(Solve, AppliesTheSignsOfTheConfiguration) {
  const PerQuantity<std::string> texts = {"12", "0", "100", "50", ""};
  expectAnswer(solveAs(AnnuityKind::Investment, inMonths(texts)), "$ 1,250.00",
               "Future Value equals:");
  expectAnswer(solveAs(AnnuityKind::Standard, inMonths(texts)), "-$ 1,250.00",
               "Future Value equals:");
}

TEST(Solve, CountsAYearAsTwelveMonths) {
  AnnuityProblem problem = inMonths({"30", "7.5", "", "100000", "0"});
  problem.termInMonths = false;
  expectAnswer(solveAs(AnnuityKind::Loan, problem), "$ 699.21", "Monthly Payment equals:");
  problem.texts = {"", "7.5", "699.2145085527766", "100000", "0"};
  expectAnswer(solveAs(AnnuityKind::Loan, problem), "30  Years\r\n0  Months",
               "Length of Time equals:");
}

TEST(Solve, HandlesAnAnnuityDue) {
  AnnuityProblem problem = inMonths({"360", "7.5", "", "100000", "0"});
  problem.dueAtBeginning = true;
  expectAnswer(solveAs(AnnuityKind::Loan, problem), "$ 694.87", "Monthly Payment equals:");
}

TEST(Solve, TreatsAZeroPaymentAsBlank) {
  const Outcome outcome = solveAs(AnnuityKind::Loan, inMonths({"360", "7.5", "0", "100000", "0"}));
  expectAnswer(outcome, "$ 699.21", "Monthly Payment equals:");
  expectPaymentWritten(outcome, "");
}

TEST(Solve, WritesZerosWhenSolvingForFutureValue) {
  const Outcome outcome = solveAs(AnnuityKind::Standard, inMonths({"12", "0", "0", "-50", ""}));
  expectAnswer(outcome, "$ 50.00", "Future Value equals:");
  expectPaymentWritten(outcome, "0");
}

TEST(Solve, IgnoresSeparatorsInAmounts) {
  expectAnswer(solveAs(AnnuityKind::Standard, inMonths({"1,200", "0", "", "-1,20000", "0"})),
               "$ 100.00", "Monthly Payment equals:");
}

TEST(Solve, RequiresExactlyOneBlank) {
  for (const PerQuantity<std::string>& texts :
       {PerQuantity<std::string>{"12", "5", "100", "1000", "0"},
        PerQuantity<std::string>{"12", "5", "", "1000", ""},
        PerQuantity<std::string>{"", "5", "", "1000", "0"},
        PerQuantity<std::string>{"", "5", "0", "1000", "0"}})
    expectRefusal(solveAs(AnnuityKind::Loan, inMonths(texts)), Refusal::OneMustBeBlank);
}

TEST(Solve, RefusesAFutureValueWithoutAmounts) {
  expectRefusal(solveAs(AnnuityKind::Loan, inMonths({"12", "5", "0", "0", ""})),
                Refusal::AmountIsNeeded);
}

TEST(Solve, ReportsArithmeticErrors) {
  const auto standard = [](PerQuantity<std::string> texts) {
    return solveAs(AnnuityKind::Standard, inMonths(std::move(texts)));
  };
  expectError(standard({"12", "abc", "", "1000", "0"}), common::kTypeMismatch);
  expectError(standard({"12", "7,5", "", "1000", "0"}), common::kTypeMismatch);
  expectError(standard({"1,2", "7.5", "", "1000", "0"}), common::kTypeMismatch);
  expectError(standard({"12", "", "100", "1000", "0"}), common::kInvalidProcedureCall);
  expectError(standard({"1E308", "5", "", "1000", "0"}), common::kOverflow);
}

}  // namespace
}  // namespace annuity
