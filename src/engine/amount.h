#pragma once

#include <string>

namespace engine {

/// An amount as it is in the entry box: its text, and the number that the text represents.
struct Amount {
  std::string text;
  double value = 0;
};

/// A number with its shortest text.
Amount amountOf(double value);

}  // namespace engine
