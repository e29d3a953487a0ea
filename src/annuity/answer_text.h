#pragma once

#include <string>

namespace annuity {

/// An amount as an answer: "$ 1,234.50", "-$ 1,234.50".
std::string moneyAnswer(double amount);

/// A rate given as a fraction: 0.0725 is "7.25 %", with two to five decimals.
std::string rateAnswer(double rate);

/// A term in months: "360  Months", "1  Month", with at most two decimals.
std::string termInMonths(double months);

/// A term given in months, as whole years and, in a second line, the remaining months: "29  Years",
/// "11.88  Months". Months are never carried over to years: 12 months are possible.
std::string termInYears(double months);

/// The message for a run-time error. While no answer is shown, an arithmetic error adds the advice
/// to try other numbers.
std::string annuityErrorText(int number, bool answerShown);

}  // namespace annuity
