// How many of the everyday problems Rate solves, beside the method of the manuals of spreadsheet
// programs, and how long each takes:  tallyrex-rate-comparison [--problems]
// With --problems it prints the problems instead, one a line, for another program to be tried on.
#include <chrono>
#include <cmath>
#include <cstdio>
#include <optional>
#include <string_view>
#include <vector>

#include "annuity/time_value.h"
#include "bench/plain_rate.h"
#include "common/run_time_error.h"
#include "unit/everyday_problems.h"

namespace annuity {
namespace {

std::optional<double> ours(const RateProblem& p) {
  try {
    return annuity::rate(p.nper, p.pmt, p.pv, p.fv, p.due);
  } catch (const common::RunTimeError&) {
    return std::nullopt;
  }
}

std::optional<double> byTheManuals(const RateProblem& p) {
  return plainRate(p.nper, p.pmt, p.pv, p.fv, p.due);
}

/// Whether a rate is the bank's but for the half cent, and for the step at which it may stop.
bool isRight(const RateProblem& problem, double rate) {
  return std::abs(rate - problem.rate) <= problem.tolerance + 1e-7;
}

template <class Solve>
void report(const char* name, const std::vector<RateProblem>& problems, Solve solve) {
  int solved = 0, wrong = 0, none = 0;
  const auto begun = std::chrono::steady_clock::now();
  for (const RateProblem& problem : problems) {
    const std::optional<double> rate = solve(problem);
    ++(!rate ? none : isRight(problem, *rate) ? solved : wrong);
  }
  const std::chrono::duration<double, std::micro> took = std::chrono::steady_clock::now() - begun;
  std::printf("%-20s %6d right %6d wrong %6d none %8.2f us each\n", name, solved, wrong, none,
              took.count() / static_cast<double>(problems.size()));
}

void print(const RateProblem& p) {
  std::printf("%.17g %.17g %.17g %.17g %d %.17g %.17g\n", p.nper, p.pmt, p.pv, p.fv, p.due, p.rate,
              p.tolerance);
}

int run(bool problemsAlone) {
  std::vector<RateProblem> problems;
  forEachEverydayProblem([&](const RateProblem& problem) { problems.push_back(problem); });
  if (problemsAlone) {
    for (const RateProblem& problem : problems) print(problem);
    return 0;
  }
  report("Rate", problems, ours);
  report("the manuals' method", problems, byTheManuals);
  return 0;
}

}  // namespace
}  // namespace annuity

int main(int argc, char** argv) {
  return annuity::run(argc > 1 && std::string_view(argv[1]) == "--problems");
}
