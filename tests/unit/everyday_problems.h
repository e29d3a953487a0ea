#pragma once

#include <array>
#include <cmath>

#include "annuity/time_value.h"

namespace annuity {

/// An everyday plan: two amounts are chosen, the bank computes the third.
struct Plan {
  const char* name;
  bool computesPayment;  ///< else the future value
  double pmt, pv, fv;

  /// The bank's amount for a monthly rate.
  double computed(double rate, double nper, int due) const {
    return computesPayment ? annuity::pmt(rate, nper, pv, fv, due)
                           : annuity::fv(rate, nper, pmt, pv, due);
  }
};

inline constexpr std::array kPlans = {
    Plan{"small loan", true, 0, 1500, 0},
    Plan{"car", true, 0, 18500, 0},
    Plan{"house", true, 0, 100000, 0},
    Plan{"estate", true, 0, 1234567.89, 0},
    Plan{"car with balloon", true, 0, 18500, -3700},
    Plan{"house with balloon", true, 0, 250000, -87500},
    Plan{"drawdown", true, 0, -100000, 0},
    Plan{"drawdown that leaves a rest", true, 0, -100000, 20000},
    Plan{"savings", false, -100, 0, 0},
    Plan{"savings from a sum", false, -250, -1000, 0},
    Plan{"sum with savings", false, -50, -20000, 0},
    Plan{"lump sum", false, 0, -5000, 0},
};

inline constexpr std::array kTerms = {1,   2,   3,   4,   5,   6,   9,   12, 15,  18,
                                      24,  30,  36,  48,  60,  72,  84,  96, 120, 144,
                                      180, 216, 240, 276, 300, 360, 420, 480};

/// The rate of a plan is unknown; its amounts are in whole cents as in a bank statement.
struct RateProblem {
  const Plan* plan;
  double percent;  ///< what the bank has computed with, a year
  double nper, pmt, pv, fv;
  int due;
  double rate;       ///< the same a month, as a fraction
  double tolerance;  ///< what half a cent of the computed amount makes of the rate
};

/// Calls `use` with every problem: each plan, over 1 to 480 months, at 0 to 30 percent, due at the
/// end or the beginning of the month. Left out are problems that do not determine the rate, in
/// which the only payment falls on the day of its sum.
template <class Use>
void forEachEverydayProblem(Use use) {
  constexpr double kStep = 1e-6;
  constexpr double kHalfACent = 0.005;
  for (const Plan& plan : kPlans) {
    for (const int nper : kTerms) {
      for (const int due : {0, 1}) {
        for (double percent = 0; percent <= 30; percent += 0.5) {
          const double rate = percent / 100 / 12;
          const double slope = std::abs(plan.computed(rate + kStep, nper, due) -
                                        plan.computed(rate - kStep, nper, due)) /
                               (2 * kStep);
          if (slope < 1e-3) continue;
          const double cents = std::round(plan.computed(rate, nper, due) * 100) / 100;
          use(RateProblem{&plan, percent, static_cast<double>(nper),
                          plan.computesPayment ? cents : plan.pmt, plan.pv,
                          plan.computesPayment ? plan.fv : cents, due, rate,
                          // The slope is not quite constant.
                          1.05 * kHalfACent / slope});
        }
      }
    }
  }
}

}  // namespace annuity
