#pragma once

namespace annuity {

// The five quantities of one stream of equal payments. They balance when, with q = (1 + rate)^nper
// and k = 1 + rate * due,
//
//     pv * q + pmt * k * (q - 1) / rate + fv = 0      (at rate 0: pv + pmt * nper + fv = 0)
//
// rate: interest per period as a fraction; nper: number of periods, whole or not; pmt: payment of
// each period; pv: amount at time 0; fv: amount after the last period; due: 0 when payments fall at
// the end of a period, 1 at its beginning. Money received is positive, money paid out negative.
//
// Each function solves for one of the five. None returns an infinity or a NaN: where there is no
// answer it raises common::RunTimeError, 6 when a value on the way overflows, else 5.

/// The payment per period. Error 5 when nper is 0.
double pmt(double rate, double nper, double pv, double fv, int due);

/// The present value.
double pv(double rate, double nper, double pmt, double fv, int due);

/// The future value.
double fv(double rate, double nper, double pmt, double pv, int due);

/// The number of periods, whole where a whole number balances the flows as well as doubles can
/// tell; otherwise fractional, and negative where only the past balances. Error 5 when no term
/// does.
double nper(double rate, double pmt, double pv, double fv, int due);

/// The rate per period, found by iteration from `guess`. Error 5 when it finds none in 20 steps.
double rate(double nper, double pmt, double pv, double fv, int due, double guess = 0.1);

}  // namespace annuity
