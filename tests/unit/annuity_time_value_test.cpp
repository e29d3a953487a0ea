#include "annuity/time_value.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <limits>
#include <nlohmann/json.hpp>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "common/run_time_error.h"
#include "unit/everyday_problems.h"

namespace annuity {
namespace {

using nlohmann::json;

/// The number of the run-time error that `call` raises; 0 without one.
int errorOf(const std::function<double()>& call) {
  try {
    call();
    return 0;
  } catch (const common::RunTimeError& error) {
    return error.number();
  }
}

/// Calls one of the five functions by its name in the reference cases.
double callByName(const std::string& name, const std::vector<double>& a) {
  const int due = static_cast<int>(a.at(4));
  if (name == "Pmt") return annuity::pmt(a[0], a[1], a[2], a[3], due);
  if (name == "PV") return annuity::pv(a[0], a[1], a[2], a[3], due);
  if (name == "FV") return annuity::fv(a[0], a[1], a[2], a[3], due);
  if (name == "NPer") return annuity::nper(a[0], a[1], a[2], a[3], due);
  if (name == "Rate") return annuity::rate(a[0], a[1], a[2], a[3], due);
  throw std::invalid_argument(name);
}

/// The cases of `function`, each with its arguments and either an exact answer or an error.
std::vector<json> referenceCases(const std::string& function) {
  const std::filesystem::path folder = u8"" TALLYREX_TEST_DATA;
  std::ifstream file(folder / "time_value_reference.json");
  std::vector<json> cases;
  for (const json& each : json::parse(file)) {
    if (each.at("function") == function) cases.push_back(each);
  }
  return cases;
}

class TimeValueReference : public testing::TestWithParam<const char*> {};

// The tolerance follows from the precision of the arguments: `cond` is the condition number, the
// sum of the relative changes of the answer over those of each argument.
TEST_P(TimeValueReference, MatchesToTheLastDigits) {
  const std::vector<json> cases = referenceCases(GetParam());
  ASSERT_GE(cases.size(), 30u);
  for (const json& each : cases) {
    SCOPED_TRACE(each.dump());
    const auto arguments = each.at("args").get<std::vector<double>>();
    const auto call = [&] { return callByName(GetParam(), arguments); };
    if (each.contains("error")) {
      EXPECT_EQ(errorOf(call), each.at("error").get<int>());
      continue;
    }
    const double exact = std::strtod(each.at("exact").get<std::string>().c_str(), nullptr);
    const double answer = call();
    if (each.contains("cond")) {
      const double share = std::max(4.0, 4 * each.at("cond").get<double>()) * 2.2e-16;
      EXPECT_NEAR(answer, exact, share * std::abs(exact));
      continue;
    }
    double distance = std::abs(answer - exact);
    for (double root : each.value("roots", std::vector<double>())) {
      distance = std::min(distance, std::abs(answer - root));
    }
    EXPECT_LE(distance, 1e-9) << answer;
  }
}

INSTANTIATE_TEST_SUITE_P(Functions, TimeValueReference,
                         testing::Values("Pmt", "PV", "FV", "NPer", "Rate"),
                         [](const auto& each) { return std::string(each.param); });

TEST(TimeValue, HandlesAZeroRate) {
  EXPECT_EQ(annuity::fv(0, 12, -100, 0, 0), 1200);
  EXPECT_EQ(annuity::pv(0, 12, -100, 0, 1), 1200);
  EXPECT_EQ(annuity::pmt(0, 12, 1200, 0, 0), -100);
  EXPECT_EQ(annuity::nper(0, -100, 1200, 0, 0), 12);
  EXPECT_NEAR(annuity::rate(12, -100, 1200, 0, 0), 0, 1e-12);
  EXPECT_NEAR(annuity::rate(12, -100, 1200, 0, 0, 0), 0, 1e-12);
}

TEST(TimeValue, AnnuityDueEarnsOneMorePeriod) {
  EXPECT_NEAR(annuity::pmt(0.00625, 360, 100000, 0, 0), -699.2145085527792, 4e-13);
  EXPECT_NEAR(annuity::pmt(0.00625, 360, 100000, 0, 1), -694.8715612946874, 4e-13);
  EXPECT_NEAR(annuity::fv(0.005, 120, -100, 0, 1), annuity::fv(0.005, 120, -100, 0, 0) * 1.005,
              1e-10);
}

TEST(TimeValue, AtMinus100PercentOnlyTheLastPaymentCounts) {
  EXPECT_EQ(annuity::fv(-1, 0, -100, 50, 0), -50);
  EXPECT_EQ(annuity::fv(-1, 12, -100, 50, 0), 100);
  EXPECT_EQ(annuity::pmt(-1, 12, 1000, -70, 0), 70);
}

// (1 + rate)^nper is 1E+305 here, and what payments of 1 grow to is beyond the range.
TEST(TimeValue, OverflowOfTheEndValueIsAnError) {
  constexpr double kPeriods = 70'229'097;
  EXPECT_EQ(errorOf([] { return annuity::pmt(1e-5, kPeriods, 1000, 0, 0); }), 6);
  EXPECT_EQ(errorOf([] { return annuity::pv(1e-5, kPeriods, 0, 1000, 0); }), 6);
  EXPECT_EQ(errorOf([] { return annuity::fv(1e-5, kPeriods, 0, 1000, 0); }), 6);
}

TEST(TimeValue, NeverReturnsNegativeZero) {
  EXPECT_FALSE(std::signbit(annuity::fv(0, 12, 0, 0, 0)));
  EXPECT_FALSE(std::signbit(annuity::pv(0.01, 12, 0, 0, 1)));
  EXPECT_FALSE(std::signbit(annuity::pmt(0.01, 12, 0, 0, 0)));
}

TEST(NPer, ReturnsAWholeTermThatBalances) {
  EXPECT_EQ(annuity::nper(0.00625, -699.2145085527766, 100000, 0, 0), 360);
  EXPECT_EQ(annuity::nper(0, -0.1, 0.3, 0, 0), 3);
  int whole = 0;
  for (int nper = 1; nper <= 480; ++nper) {
    for (double percent = 0.25; percent <= 30; percent += 1.75, ++whole) {
      const double rate = percent / 100 / 12;
      EXPECT_EQ(annuity::nper(rate, annuity::pmt(rate, nper, 100000, -5000, nper % 2), 100000,
                              -5000, nper % 2),
                nper)
          << percent;
    }
  }
  EXPECT_EQ(whole, 480 * 18);
}

TEST(NPer, KeepsAnAlmostWholeTerm) {
  EXPECT_EQ(annuity::nper(0, -100, 150, 0, 0), 1.5);
  EXPECT_NEAR(annuity::nper(0, -100, 35999.9, 0, 0), 359.999, 1e-12);
  const double withinACent = annuity::nper(0.00625, -699.21, 100000, 0, 0);
  EXPECT_NE(withinACent, 360);
  EXPECT_NEAR(withinACent, 360, 0.02);
}

/// The number that is so many units of the last place above `value`.
double lastDigitsAbove(double value, int steps) {
  for (; steps > 0; --steps) value = std::nextafter(value, std::numeric_limits<double>::infinity());
  return value;
}

// The tolerance is 16 units of the last place, and 4 more for each unit of the exponent: here 37
// and 145 units of an amount are within it, 38 and 170 beyond.
TEST(NPer, RoundsOnlyWithinFloatingPointError) {
  EXPECT_EQ(annuity::nper(0, -100, lastDigitsAbove(1200, 37), 0, 0), 12);
  EXPECT_NE(annuity::nper(0, -100, lastDigitsAbove(1200, 38), 0, 0), 12);
  const double payment = annuity::pmt(0.025, 360, 100000, 0, 0);
  EXPECT_EQ(annuity::nper(0.025, payment, lastDigitsAbove(100000, 145), 0, 0), 360);
  EXPECT_NE(annuity::nper(0.025, payment, lastDigitsAbove(100000, 170), 0, 0), 360);
}

// Two payments of 10 grow to 10 (2 + rate).
TEST(Rate, ConvergesOnADistantRoot) {
  EXPECT_NEAR(annuity::rate(2, -10, 0, 1500, 0), 148, 1e-9);
  EXPECT_NEAR(annuity::rate(2, -10, 0, 10000, 0), 998, 1e-9);
}

TEST(Rate, StartsFromTheGuess) {
  // Two rates balance a loan that pays money back at the end; the guess selects one.
  EXPECT_NEAR(annuity::rate(208, -700, 137600, 8000, 0, 0.001), 0, 1e-9);
  EXPECT_NEAR(annuity::rate(208, -700, 137600, 8000, 0, -0.08), -0.08749999147846454, 1e-9);
  EXPECT_EQ(errorOf([] { return annuity::rate(360, -699.21, 100000, 0, 0, -1); }), 5);
  EXPECT_EQ(errorOf([] { return annuity::rate(45, -790, 4105, 0, 0, -3.8092); }), 5);
}

// Whether an amount is saved up depends on the signs alone, however small the amounts are.
TEST(Rate, IsFoundForEverySignOfSmallAmounts) {
  EXPECT_NEAR(annuity::rate(120, -0.5, 0, 1, 0), -0.5, 1e-9);
  EXPECT_NEAR(annuity::rate(120, 0.5, 0, -1, 0), -0.5, 1e-9);
  EXPECT_NEAR(annuity::rate(60, 0.5, 0, -0.5, 1), -0.5, 1e-9);
  EXPECT_NEAR(annuity::rate(60, -0.5, 0, 0.75, 0), -2.0 / 3, 1e-9);
  EXPECT_NEAR(annuity::rate(2, -0.5, 100, 0.5, 0), -0.995, 1e-9);
  EXPECT_NEAR(annuity::rate(24, -0.5, 1, -1, 1), 1, 1e-9);
  EXPECT_NEAR(annuity::rate(360, -1, 0.5, 50, 0), 2, 1e-9);
  EXPECT_NEAR(annuity::rate(480, -1, 1, -700000, 0), 1, 1e-9);
}

TEST(Rate, TakesTwentyStepsAndNoMore) {
  EXPECT_NEAR(annuity::rate(2, -0.5, 1, -100000, 1), 446.713875008, 1e-8);
  EXPECT_EQ(errorOf([] { return annuity::rate(3, -10, 10, 150000, 1); }), 5);
}

TEST(Rate, RefusesRatesNextToMinusOne) {
  EXPECT_EQ(errorOf([] { return annuity::rate(1, -1, 1e12, -100, 0); }), 5);
  EXPECT_NEAR(annuity::rate(1, -1, 1e12, -100000, 0), -0.999999899999, 1e-15);
  EXPECT_EQ(errorOf([] { return annuity::rate(12, -100, 1000, 0, 0, -1 + 1e-10); }), 5);
}

void checkRate(const RateProblem& p) {
  double found = 0;
  EXPECT_EQ(errorOf([&] { return found = annuity::rate(p.nper, p.pmt, p.pv, p.fv, p.due); }), 0);
  // With the rate found, the payment or value must be the given one after rounding.
  const Plan& plan = *p.plan;
  const double asked = plan.computed(found, p.nper, p.due);
  EXPECT_NEAR(asked, plan.computesPayment ? p.pmt : p.fv,
              1e-10 * (std::abs(plan.pv) + std::abs(plan.fv) + std::abs(asked)));
  EXPECT_NEAR(found, p.rate, p.tolerance + 1e-11);
}

TEST(Rate, SolvesEverydayProblems) {
  std::size_t problems = 0, ofSeveralMonths = 0;
  forEachEverydayProblem([&](const RateProblem& problem) {
    SCOPED_TRACE(testing::Message() << problem.plan->name << ", " << problem.nper << " months, due "
                                    << problem.due << ", " << problem.percent << " %");
    checkRate(problem);
    ++problems;
    ofSeveralMonths += problem.nper > 1;
  });
  RecordProperty("problems", static_cast<int>(problems));
  EXPECT_GE(problems, 40000u);
  // All of them are tested: twelve plans, 27 terms, due at the beginning or the end, 61 rates.
  EXPECT_EQ(ofSeveralMonths, kPlans.size() * (kTerms.size() - 1) * 2 * 61);
}

/// Numbers of every magnitude and sign, often edge cases of the arithmetic.
class OddNumbers {
 public:
  double next() {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
    constexpr std::array kOdd = {
        0.0,    -0.0,   1.0,    -1.0,  -2.0,     0.1,  0.5, -0.5,    12.0, 360.0,  -0.999999, 1e-10,
        -1e-16, 1e-300, 5e-324, 1e300, -1.7e308, 1e17, 2.5, -699.21, 1e5,  -100.0, kInfinity, kNaN};
    switch (below(4)) {
      case 0:
        return kOdd[below(kOdd.size())];
      case 1:
        return (below(2) ? 1 : -1) * std::pow(10.0, static_cast<double>(below(600)) - 300);
      case 2:
        return static_cast<double>(below(2000)) / 100 - 10;
      default:
        return static_cast<double>(below(100000)) - 50000;
    }
  }
  int due() { return static_cast<int>(below(2)); }

 private:
  std::size_t below(std::size_t bound) { return static_cast<std::size_t>(engine_() % bound); }

  std::mt19937_64 engine_{20240229};
};

TEST(TimeValue, ReturnsAFiniteNumberOrRaisesAnError) {
  OddNumbers numbers;
  int answers = 0, errors = 0;
  for (int round = 0; round < 20000; ++round) {
    for (const char* function : {"Pmt", "PV", "FV", "NPer", "Rate"}) {
      const std::vector<double> arguments = {numbers.next(), numbers.next(), numbers.next(),
                                             numbers.next(), static_cast<double>(numbers.due())};
      double answer = 0;
      const int error = errorOf([&] { return answer = callByName(function, arguments); });
      EXPECT_TRUE((error == 0 && std::isfinite(answer)) || error == 5 || error == 6)
          << function << testing::PrintToString(arguments) << " = " << answer << ", " << error;
      ++(error == 0 ? answers : errors);
    }
  }
  EXPECT_GT(answers, 10000);
  EXPECT_GT(errors, 10000);
}

// An answer that does not balance the flows would be worse than an error.
TEST(Rate, EveryAnswerBalances) {
  std::mt19937_64 engine(360);
  const auto uniform = [&](double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(engine);
  };
  int answers = 0;
  for (int round = 0; round < 20000; ++round) {
    const double nper = uniform(0.1, 600), pmt = uniform(-1000, 1000);
    const double pv = uniform(-1e5, 1e5), fv = uniform(-1e5, 1e5);
    const int due = round % 2;
    double rate = 0;
    if (errorOf([&] { return rate = annuity::rate(nper, pmt, pv, fv, due); }) != 0) continue;
    ++answers;
    const double grown = annuity::fv(rate, nper, 0, pv, due),
                 paid = annuity::fv(rate, nper, pmt, 0, due);
    EXPECT_NEAR(grown + paid, fv, 1.001e-7 * (std::abs(grown) + std::abs(paid) + std::abs(fv)))
        << nper << ' ' << pmt << ' ' << pv << ' ' << fv << ' ' << due;
  }
  EXPECT_GT(answers, 5000);
}

}  // namespace
}  // namespace annuity
