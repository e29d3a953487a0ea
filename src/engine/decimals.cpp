#include "engine/decimals.h"

#include "common/number_text.h"

namespace engine {

int Decimals::places() const {
  const std::string text = places_.text();
  return common::isOneDigit(text) ? text[0] - '0' : 0;
}

void Decimals::fillEmptyBox() {
  if (places_.length() == 0) places_.setText("0");
}

}  // namespace engine
