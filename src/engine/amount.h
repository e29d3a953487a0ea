#pragma once

#include <string>

namespace engine {

/// An amount as in the entry box: its text and the number it represents.
struct Amount {
  std::string text;
  double value = 0;
};

/// A showable number with its shortest text.
Amount amountOf(double value);

/// Whether a number is finite and its shortest text can be read again: next to the largest double,
/// rounding to 15 digits leads beyond it.
bool isShowable(double value);

}  // namespace engine
