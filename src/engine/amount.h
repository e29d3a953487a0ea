#pragma once

#include <string>

namespace engine {

/// An amount as in the entry box: its text and the number it represents.
struct Amount {
  std::string text;
  double value = 0;
};

/// A number with its shortest text.
Amount amountOf(double value);

}  // namespace engine
