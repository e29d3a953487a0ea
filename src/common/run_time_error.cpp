#include "common/run_time_error.h"

namespace common {

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

std::string errorText(int number) {
  return "Error:" + std::to_string(number) + " " + std::string(standardDescription(number));
}

}  // namespace common
