#include "engine/amount.h"

#include <cmath>

#include "common/number_text.h"

namespace engine {

// The text decides: it has at most 15 digits.
Amount amountOf(double value) {
  std::string text = common::toText(value);
  const double shown = common::toNumber(text);
  return {std::move(text), shown};
}

bool isShowable(double value) {
  // The 15 digits of the next larger double are 1.79769313486232E+308, beyond the largest double.
  constexpr double kLargest = 1.797693134862315e308;
  return std::abs(value) <= kLargest;
}

}  // namespace engine
