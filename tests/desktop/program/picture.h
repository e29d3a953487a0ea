#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

namespace program {

/// What the screen shows at a place, as the user sees it.
class Picture {
 public:
  explicit Picture(const RECT& place);

  /// The dots from the top left, row by row, as 0x00RRGGBB.
  const std::vector<std::uint32_t>& dots() const { return dots_; }

 private:
  int width_;
  int height_;
  std::vector<std::uint32_t> dots_;
};

/// The colour of one dot of the screen.
COLORREF colorAt(POINT place);

}  // namespace program
