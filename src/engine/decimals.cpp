#include "engine/decimals.h"

#include "common/number_text.h"

namespace engine {

int Decimals::places() const {
  const std::string text = places_.text();
  const bool isOneDigit = text.size() == 1 && common::isDigit(text[0]);
  return isOneDigit ? text[0] - '0' : 0;
}

void Decimals::fillEmptyBox() {
  if (places_.length() == 0) places_.setText("0");
}

}  // namespace engine
