#include "driver/calls.h"

#include <algorithm>
#include <array>
#include <string_view>

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

using Arguments = std::vector<Json>;
using TimeValue = double (*)(double, double, double, double, int);

template <TimeValue function>
Json callTimeValue(const Arguments& a) {
  expect(a, 5, 5);
  return function(number(a, 0), number(a, 1), number(a, 2), number(a, 3),
                  static_cast<int>(number(a, 4)));
}

Json callRate(const Arguments& a) {
  expect(a, 5, 6);
  const int due = static_cast<int>(number(a, 4));
  if (a.size() == 5)
    return annuity::rate(number(a, 0), number(a, 1), number(a, 2), number(a, 3), due);
  return annuity::rate(number(a, 0), number(a, 1), number(a, 2), number(a, 3), due, number(a, 5));
}

Json callFormat(const Arguments& a) {
  expect(a, 2, 2);
  return a[0].is_number() ? common::formatNumber(number(a, 0), text(a, 1))
                          : common::formatText(text(a, 0), text(a, 1));
}

Json callValue(const Arguments& a) {
  expect(a, 1, 1);
  return common::toNumber(text(a, 0));
}

Json callText(const Arguments& a) {
  expect(a, 1, 1);
  return common::toText(number(a, 0));
}

struct Function {
  std::string_view name;
  Json (*call)(const Arguments&);
};

constexpr auto kFunctions = std::to_array<Function>({
    {"Pmt", callTimeValue<annuity::pmt>},
    {"PV", callTimeValue<annuity::pv>},
    {"FV", callTimeValue<annuity::fv>},
    {"NPer", callTimeValue<annuity::nper>},
    {"Rate", callRate},
    {"Format", callFormat},
    {"Value", callValue},
    {"Text", callText},
});

}  // namespace

Json callFunction(const std::string& name, const std::vector<Json>& arguments) {
  const auto function = std::ranges::find(kFunctions, name, &Function::name);
  if (function == kFunctions.end()) throw CommandError("no such function: " + name);
  try {
    return {{"value", function->call(arguments)}};
  } catch (const common::RunTimeError& error) {
    return {{"raised", error.number()}};
  }
}

}  // namespace driver
