#pragma once

#include <optional>

namespace annuity {

/// The rate per period as the manuals of spreadsheet programs describe their function of that name,
/// taken at its word: iterated on the balance equation itself, from an estimate of 10 percent,
/// until two results in succession differ by less than 0.0000001; nothing when they do not after 20
/// iterations. The manuals leave the step open: it is Newton's here.
std::optional<double> plainRate(double nper, double pmt, double pv, double fv, int due);

}  // namespace annuity
