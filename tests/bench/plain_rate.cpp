#include "bench/plain_rate.h"

#include <cmath>

namespace annuity {
namespace {

constexpr int kMostIterations = 20;
constexpr double kClose = 1e-7;
constexpr double kFirst = 0.1;

/// The stream of payments whose rate is asked.
struct Flows {
  double nper, pmt, pv, fv;
  int due;

  double balance(double rate) const {
    if (rate == 0) return pv + pmt * nper + fv;
    const double q = std::pow(1 + rate, nper);
    return pv * q + pmt * (1 + rate * due) * (q - 1) / rate + fv;
  }

  double slope(double rate) const {
    if (rate == 0) return pv * nper + pmt * (nper * (nper - 1) / 2 + nper * due);
    const double q = std::pow(1 + rate, nper);
    const double qSlope = nper * q / (1 + rate);
    const double gained = (q - 1) / rate;
    return pv * qSlope + pmt * (due * gained + (1 + rate * due) * (qSlope - gained) / rate);
  }
};

}  // namespace

std::optional<double> plainRate(double nper, double pmt, double pv, double fv, int due) {
  const Flows flows{nper, pmt, pv, fv, due};
  double rate = kFirst;
  for (int i = 0; i < kMostIterations; ++i) {
    const double next = rate - flows.balance(rate) / flows.slope(rate);
    if (!std::isfinite(next)) return std::nullopt;
    if (std::abs(next - rate) < kClose) return next;
    rate = next;
  }
  return std::nullopt;
}

}  // namespace annuity
