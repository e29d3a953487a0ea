#pragma once

#include <string>

namespace annuity {

/// An amount as the answer shows it: "$ 1,234.50", "-$ 1,234.50".
std::string moneyAnswer(double amount);

/// A rate given as a fraction: 0.0725 is "7.25 %", with two to five decimals.
std::string rateAnswer(double rate);

/// A term in months: "360  Months", "1  Month", with at most two decimals.
std::string termInMonths(double months);

/// A term given in months, shown in two lines as whole years and the months that remain: "29 Years"
/// above "11.88  Months". Months are never carried over to years: 12 months are possible.
std::string termInYears(double months);

/// What is reported of a run-time error. While no answer is shown, it says of an error of the
/// arithmetic that there is none.
std::string annuityErrorText(int number, bool answerShown);

}  // namespace annuity
