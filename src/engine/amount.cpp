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
  return std::isfinite(value) && common::tryNumber(common::toText(value)).has_value();
}

}  // namespace engine
