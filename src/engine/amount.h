#pragma once

#include <string>

namespace engine {

/// An amount as it stands in the entry box: its text, and the number that the text stands for.
struct Amount {
  std::string text;
  double value = 0;
};

/// A number with its shortest text.
Amount amountOf(double value);

}  // namespace engine
