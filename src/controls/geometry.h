#pragma once

#include <algorithm>
#include <cmath>

namespace controls {

/// A twentieth of a point: 1440 to the inch, 15 to a pixel at 100 percent scaling.
using Twips = int;

inline constexpr Twips kTwipsPerPixel = 15;

/// A stored position or size, limited to what a window can have: coordinates of a screen are 16-bit
/// pixel numbers.
inline Twips clampedTwips(double stored) {
  constexpr double kFarthest = 32767 * kTwipsPerPixel;
  return static_cast<Twips>(std::lround(std::clamp(stored, -kFarthest, kFarthest)));
}

/// A position and a size, in twips.
struct Rect {
  Twips left = 0;
  Twips top = 0;
  Twips width = 0;
  Twips height = 0;

  bool operator==(const Rect&) const = default;
};

/// How much wider and higher a window counts than its client area, whatever frame the system draws.
inline constexpr Twips kFrameWidth = 120;
inline constexpr Twips kFrameHeight = 405;
inline constexpr Twips kFrameHeightWithMenu = 690;

}  // namespace controls
