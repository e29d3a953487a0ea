#include "annuity/time_value.h"

#include <cmath>
#include <limits>

#include "common/run_time_error.h"

namespace annuity {
namespace {

using common::kInvalidProcedureCall;
using common::kOverflow;
using common::RunTimeError;

/// The coefficients of the balance: pv * q + pmt * s + fv = 0.
struct Factors {
  double q;  ///< (1 + rate)^nper
  double s;  ///< k * (q - 1) / rate, the end value of payments of 1
};

/// Whether a rate counts as nonzero. A subnormal double is too imprecise.
bool bearsInterest(double rate) {
  return !(std::abs(rate) < std::numeric_limits<double>::min());
}

/// The factors at `rate`, unchecked: not finite where they overflow or are undefined.
Factors factorsAt(double rate, double nper, int due) {
  const double k = 1 + rate * due;
  if (!bearsInterest(rate)) return {1, nper};
  if (rate <= -1) {
    const double q = std::pow(1 + rate, nper);
    return {q, k * ((q - 1) / rate)};
  }
  // Computes q - 1 directly: for a small rate, q has lost the digits of the interest.
  const double x = nper * std::log1p(rate);
  return {std::exp(x), k * (std::expm1(x) / rate)};
}

/// The factors at `rate`. Error 5 where q is undefined, 6 where it overflows.
Factors usableFactors(double rate, double nper, int due) {
  const Factors factors = factorsAt(rate, nper, due);
  const bool dividesByZero = rate == -1 && nper < 0;
  if (dividesByZero || std::isnan(factors.q)) throw RunTimeError(kInvalidProcedureCall);
  // s overflows with q, and before it.
  if (!std::isfinite(factors.s)) throw RunTimeError(kOverflow);
  return factors;
}

/// `value` as an answer, never -0. Error 6 when it has overflowed.
double answer(double value) {
  return common::finite(value) == 0 ? 0 : value;
}

/// Whether the flows balance within `share` of their size.
bool balances(const Factors& factors, double pmt, double pv, double fv, double share) {
  const double grown = pv * factors.q;
  const double paid = pmt * factors.s;
  const double size = std::abs(grown) + std::abs(paid) + std::abs(fv);
  return std::isfinite(size) && std::abs(grown + paid + fv) <= share * size;
}

/// `nper`, or the nearest whole number if only rounding errors separate the two.
double wholeTerm(double nper, double rate, double pmt, double pv, double fv, int due) {
  const double whole = std::round(nper);
  const double share =
      (16 + 4 * std::abs(whole * std::log1p(rate))) * std::numeric_limits<double>::epsilon();
  return balances(factorsAt(rate, whole, due), pmt, pv, fv, share) ? whole : nper;
}

/// A function of the rate with a zero where the flows balance.
struct Point {
  double value;
  double slope;
};

/// The derivatives of the factors with respect to the rate.
Factors slopesAt(double rate, double nper, int due, const Factors& factors) {
  const double qSlope = nper * factors.q / (1 + rate);
  const double k = 1 + rate * due;
  const double gained = factors.s / k;  // (q - 1) / rate
  // Near 0 the difference cancels out; its limit is precise enough for a step.
  const bool nearZero = std::abs(nper * rate) < 1e-5;
  const double gainedSlope = nearZero ? nper * (nper - 1) / 2 : (qSlope - gained) / rate;
  return {qSlope, due * gained + k * gainedSlope};
}

bool sameSign(double a, double b) {
  return (a > 0 && b > 0) || (a < 0 && b < 0);
}

/// The balance in a form that is nearly linear, so that Newton's method converges fast.
Point balanceAt(const Factors& factors, const Factors& slopes, double pmt, double pv, double fv) {
  const bool savingUp = fv != 0 && !sameSign(pmt, fv) && !sameSign(pv, fv);
  if (savingUp) {
    // The end value grows as a power of the rate: its logarithm is nearly linear.
    const double saved = pv * factors.q + pmt * factors.s;
    return {std::log(saved / -fv), (pv * slopes.q + pmt * slopes.s) / saved};
  }
  // Divided by s, the equation gives the payment needed at a rate, which is nearly linear.
  const double needed = (pv * factors.q + fv) / factors.s;
  return {needed + pmt, (pv * slopes.q - needed * slopes.s) / factors.s};
}

}  // namespace

double pmt(double rate, double nper, double pv, double fv, int due) {
  const Factors factors = usableFactors(rate, nper, due);
  if (factors.s == 0) throw RunTimeError(kInvalidProcedureCall);
  return answer(-(fv + pv * factors.q) / factors.s);
}

double pv(double rate, double nper, double pmt, double fv, int due) {
  const Factors factors = usableFactors(rate, nper, due);
  // At -1 and below there is nothing to divide by; above, q has underflowed.
  if (factors.q == 0) throw RunTimeError(rate <= -1 ? kInvalidProcedureCall : kOverflow);
  return answer(-(fv + pmt * factors.s) / factors.q);
}

double fv(double rate, double nper, double pmt, double pv, int due) {
  const Factors factors = usableFactors(rate, nper, due);
  return answer(-(pv * factors.q + pmt * factors.s));
}

double nper(double rate, double pmt, double pv, double fv, int due) {
  if (rate <= -1) throw RunTimeError(kInvalidProcedureCall);
  if (!bearsInterest(rate)) {
    if (pmt == 0) throw RunTimeError(kInvalidProcedureCall);
    return wholeTerm(answer(-(pv + fv) / pmt), 0, pmt, pv, fv, due);
  }
  // ln((c - fv) / (c + pv)) / ln(1 + rate), where c is the amount whose interest is the payment.
  const double c = answer(pmt * (1 + rate * due) / rate);
  const double quotient = (c - fv) / (c + pv);
  if (c + pv == 0 || !(quotient > 0)) throw RunTimeError(kInvalidProcedureCall);
  // A quotient near 1 has lost the digits that its logarithm needs.
  const double excess = -(fv + pv) / (c + pv);
  const double logarithm = std::abs(excess) < 0.5 ? std::log1p(excess) : std::log(quotient);
  return wholeTerm(answer(logarithm / std::log1p(rate)), rate, pmt, pv, fv, due);
}

double rate(double nper, double pmt, double pv, double fv, int due, double guess) {
  constexpr int kMostSteps = 20;
  constexpr double kClose = 1e-7;
  // Closer to -1, a double cannot distinguish the rates.
  constexpr double kLeastLeft = 1e-9;
  if (!(nper > 0) || !(guess + 1 > kLeastLeft)) throw RunTimeError(kInvalidProcedureCall);
  double rate = guess;
  Factors factors = factorsAt(rate, nper, due);
  for (int step = 0; step < kMostSteps; ++step) {
    const Point point = balanceAt(factors, slopesAt(rate, nper, due, factors), pmt, pv, fv);
    const double next = rate - point.value / point.slope;
    // Also fails for a slope of 0, an undefined logarithm and an overflow.
    if (!(next + 1 > kLeastLeft) || !std::isfinite(next)) break;
    const bool settled = std::abs(next - rate) < kClose;
    rate = next;
    factors = factorsAt(rate, nper, due);
    if (settled && balances(factors, pmt, pv, fv, kClose)) return answer(rate);
  }
  throw RunTimeError(kInvalidProcedureCall);
}

}  // namespace annuity
