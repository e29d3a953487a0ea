#pragma once

#include <algorithm>
#include <cmath>

namespace controls {

/// A twentieth of a point: 1440 to the inch, 15 to a pixel at 100 percent scaling.
using Twips = int;

/// A stored place or size as one that a window can have: no screen reaches farther than a 16-bit
/// number of pixels.
inline Twips clampedTwips(double stored) {
  constexpr double kFarthest = 32767 * 15;
  return static_cast<Twips>(std::lround(std::clamp(stored, -kFarthest, kFarthest)));
}

/// A place and a size, in twips.
struct Rect {
  Twips left = 0;
  Twips top = 0;
  Twips width = 0;
  Twips height = 0;

  bool operator==(const Rect&) const = default;
};

/// What a window is wider and higher than its client area, whatever frame the system draws around
/// it.
inline constexpr Twips kFrameWidth = 120;
inline constexpr Twips kFrameHeight = 405;
inline constexpr Twips kFrameHeightWithMenu = 690;

}  // namespace controls
