#include "engine/decimals.h"

namespace engine {

int Decimals::places() const {
  const std::string text = places_.text();
  const bool some = text.size() == 1 && text[0] >= '1' && text[0] <= '9';
  return some ? text[0] - '0' : 0;
}

void Decimals::fillEmptyBox() {
  if (places_.length() == 0) places_.setText("0");
}

}  // namespace engine
