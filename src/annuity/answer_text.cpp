#include "annuity/answer_text.h"

#include <cmath>
#include <string_view>

#include "common/number_pattern.h"
#include "common/number_text.h"
#include "common/run_time_error.h"

namespace annuity {

using common::formatNumber;
using common::formatText;
using common::toText;

namespace {

constexpr std::string_view kWhole = "####0";
constexpr std::string_view kBroken = "####0.##";

// A remainder this close to a whole number of months is shown as a whole number.
bool isNearlyWhole(float months) {
  const float fraction = months - std::floor(months);
  return fraction >= 0.995F || fraction <= 0.004F;
}

}  // namespace

std::string moneyAnswer(double amount) {
  return formatText(toText(amount), "$ ###,###,###,##0.00");
}

std::string rateAnswer(double rate) {
  return formatText(toText(rate), "####0.00### %");
}

std::string termInMonths(double months) {
  // Only 15 digits decide whether it is whole, so that rounding errors do not show.
  const std::string text = toText(months);
  const double shown = common::toNumber(text);
  const bool broken = std::floor(shown) < shown;
  return formatNumber(shown, broken ? kBroken : kWhole) + (text == "1" ? "  Month" : "  Months");
}

std::string termInYears(double months) {
  const double years = months / 12;
  const double wholeYears = std::floor(years);
  const auto rest = static_cast<float>((years - wholeYears) * 12);
  const bool oneMonth = rest > 0.995F && rest <= 1.0F;
  return formatNumber(wholeYears, kWhole) + (wholeYears == 1 ? "  Year" : "  Years") + "\r\n" +
         formatNumber(rest, isNearlyWhole(rest) ? kWhole : kBroken) +
         (oneMonth ? "  Month" : "  Months");
}

std::string annuityErrorText(int number, bool answerShown) {
  std::string text = common::errorText(number);
  const bool unobtainable = number == common::kInvalidProcedureCall || number == common::kOverflow;
  if (unobtainable && !answerShown) {
    text +=
        "\rThe answer is not obtainable using the current variables, "
        "try adjusting one or more of the numbers significantly.";
  }
  return text;
}

}  // namespace annuity
