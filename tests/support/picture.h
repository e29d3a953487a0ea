#pragma once

#include <windows.h>

#include <cstddef>
#include <vector>

namespace support {

/// A picture of a window's client area, or of a part of the screen.
class Picture {
 public:
  explicit Picture(HWND window);
  explicit Picture(const RECT& ofScreen);
  /// A picture of what has been drawn in a device context.
  Picture(HDC context, SIZE size);

  int width() const { return width_; }
  int height() const { return height_; }
  /// All pixels, row by row.
  const std::vector<COLORREF>& points() const { return points_; }
  /// The color of a pixel. Throws outside the picture.
  COLORREF at(int x, int y) const {
    return points_.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                      static_cast<std::size_t>(x));
  }
  /// The number of pixels of an area whose color meets a condition.
  template <class Wanted>
  int count(const RECT& part, const Wanted& wanted) const {
    int found = 0;
    for (int y = part.top; y < part.bottom; ++y)
      for (int x = part.left; x < part.right; ++x)
        if (wanted(at(x, y))) ++found;
    return found;
  }

 private:
  void copyFrom(HDC context, POINT corner);

  int width_ = 0;
  int height_ = 0;
  std::vector<COLORREF> points_;
};

/// The contrast ratio of two colors as WCAG defines it, computed independently of the program.
double contrast(COLORREF one, COLORREF other);

}  // namespace support
