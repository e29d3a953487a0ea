#include "driver/calls.h"

#include "annuity/time_value.h"
#include "common/number_pattern.h"
#include "common/number_text.h"
#include "common/run_time_error.h"
#include "driver/command.h"

namespace driver {

namespace {

double number(const std::vector<Json>& arguments, std::size_t index) {
  if (index >= arguments.size() || !arguments[index].is_number())
    throw CommandError("a number is wanted");
  return arguments[index].get<double>();
}

std::string text(const std::vector<Json>& arguments, std::size_t index) {
  if (index >= arguments.size() || !arguments[index].is_string())
    throw CommandError("a text is wanted, in quotes");
  return arguments[index].get<std::string>();
}

void expect(const std::vector<Json>& arguments, std::size_t least, std::size_t most) {
  if (arguments.size() < least || arguments.size() > most)
    throw CommandError("wrong number of arguments");
}

using FourAmounts = double (*)(double, double, double, double, int);

double callTimeValue(FourAmounts function, const std::vector<Json>& a) {
  expect(a, 5, 5);
  return function(number(a, 0), number(a, 1), number(a, 2), number(a, 3),
                  static_cast<int>(number(a, 4)));
}

double callRate(const std::vector<Json>& a) {
  expect(a, 5, 6);
  const int due = static_cast<int>(number(a, 4));
  if (a.size() == 5)
    return annuity::rate(number(a, 0), number(a, 1), number(a, 2), number(a, 3), due);
  return annuity::rate(number(a, 0), number(a, 1), number(a, 2), number(a, 3), due, number(a, 5));
}

std::string callFormat(const std::vector<Json>& a) {
  expect(a, 2, 2);
  return a[0].is_number() ? common::formatNumber(number(a, 0), text(a, 1))
                          : common::formatText(text(a, 0), text(a, 1));
}

Json valueOf(const std::string& name, const std::vector<Json>& a) {
  if (name == "Pmt") return callTimeValue(annuity::pmt, a);
  if (name == "PV") return callTimeValue(annuity::pv, a);
  if (name == "FV") return callTimeValue(annuity::fv, a);
  if (name == "NPer") return callTimeValue(annuity::nper, a);
  if (name == "Rate") return callRate(a);
  if (name == "Format") return callFormat(a);
  if (name == "Value") {
    expect(a, 1, 1);
    return common::toNumber(text(a, 0));
  }
  if (name == "Text") {
    expect(a, 1, 1);
    return common::toText(number(a, 0));
  }
  throw CommandError("no such function: " + name);
}

}  // namespace

Json callFunction(const std::string& name, const std::vector<Json>& arguments) {
  try {
    return {{"value", valueOf(name, arguments)}};
  } catch (const common::RunTimeError& error) {
    return {{"raised", error.number()}};
  }
}

}  // namespace driver
