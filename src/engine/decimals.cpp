#include "engine/decimals.h"

namespace engine {

int Decimals::places() const {
  const std::string text = places_.text();
  const bool oneDigit = text.size() == 1 && text[0] >= '0' && text[0] <= '9';
  return oneDigit ? text[0] - '0' : 0;
}

void Decimals::fillEmptyBox() {
  if (places_.length() == 0) places_.setText("0");
}

}  // namespace engine
