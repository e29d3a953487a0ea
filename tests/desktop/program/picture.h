#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

namespace program {

/// The screen contents in a rectangle.
class Picture {
 public:
  explicit Picture(const RECT& place);

  /// The pixels from the top left, row by row, as 0x00RRGGBB.
  const std::vector<std::uint32_t>& dots() const { return dots_; }

 private:
  int width_;
  int height_;
  std::vector<std::uint32_t> dots_;
};

/// The color of one pixel of the screen.
COLORREF colorAt(POINT place);

}  // namespace program
