#include "engine/amount.h"

#include "common/number_text.h"

namespace engine {

// The text decides: it has at most 15 digits.
Amount amountOf(double value) {
  std::string text = common::toText(value);
  const double said = common::tryNumber(text).value_or(value);
  return {std::move(text), said};
}

}  // namespace engine
