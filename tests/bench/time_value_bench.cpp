#include <benchmark/benchmark.h>

#include "annuity/time_value.h"

namespace annuity {
namespace {

// A house loan of 30 years at 7.5 percent, once for each of the five blanks. The inputs go through
// DoNotOptimize, or the compiler would hoist the call out of the loop.
double rate = 0.00625;
double nper = 360;
double pmt = -699.21;
double pv = 100000;
double fv = 0;

template <class Solve>
void solve(benchmark::State& state, Solve function) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(rate);
    benchmark::DoNotOptimize(nper);
    benchmark::DoNotOptimize(function());
  }
}

void BM_Pmt(benchmark::State& state) {
  solve(state, [] { return annuity::pmt(rate, nper, pv, fv, 0); });
}
void BM_PV(benchmark::State& state) {
  solve(state, [] { return annuity::pv(rate, nper, pmt, fv, 0); });
}
void BM_FV(benchmark::State& state) {
  solve(state, [] { return annuity::fv(rate, nper, pmt, pv, 0); });
}
void BM_NPer(benchmark::State& state) {
  solve(state, [] { return annuity::nper(rate, pmt, pv, fv, 0); });
}
void BM_RateOfALoan(benchmark::State& state) {
  solve(state, [] { return annuity::rate(nper, pmt, pv, fv, 0); });
}
void BM_RateOfSavings(benchmark::State& state) {
  solve(state, [] { return annuity::rate(nper, -100, 0, 134270.4, 0); });
}

BENCHMARK(BM_Pmt);
BENCHMARK(BM_PV);
BENCHMARK(BM_FV);
BENCHMARK(BM_NPer);
BENCHMARK(BM_RateOfALoan);
BENCHMARK(BM_RateOfSavings);

}  // namespace
}  // namespace annuity

BENCHMARK_MAIN();
