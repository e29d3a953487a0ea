#include "common/run_time_error.h"

#include <cmath>
#include <string_view>

namespace common {
namespace {

std::string_view standardDescription(int number) {
  switch (number) {
    case kInvalidProcedureCall:
      return "Invalid procedure call or argument";
    case kOverflow:
      return "Overflow";
    case kDivisionByZero:
      return "Division by zero";
    case kTypeMismatch:
      return "Type mismatch";
    default:
      return "Application-defined or object-defined error";
  }
}

}  // namespace

std::string errorText(int number) {
  std::string text = "Error:" + std::to_string(number);
  text.append(" ").append(standardDescription(number));
  if (number == kWindowUnusable || number == kWindowOutdated)
    text += "\rPlease close this window and reload this form.";
  return text;
}

double finite(double value) {
  if (!std::isfinite(value)) throw RunTimeError(kOverflow);
  return value;
}

}  // namespace common
