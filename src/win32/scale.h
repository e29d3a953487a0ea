#pragma once

#include <windows.h>

#include "controls/geometry.h"

namespace win32 {

/// Converts between twips and pixels at a resolution.
class Scale {
 public:
  explicit Scale(UINT dpi) : dpi_(static_cast<int>(dpi)) {}
  /// The scale of the window's monitor.
  static Scale of(HWND window);
  /// The scale of the whole screen, which does not change while the user is logged on.
  static Scale ofScreen();

  int dpi() const { return dpi_; }
  int toPixels(controls::Twips twips) const { return MulDiv(twips, dpi_, kTwipsPerInch); }
  controls::Twips toTwips(int pixels) const { return MulDiv(pixels, kTwipsPerInch, dpi_); }
  /// Rectangles that are adjacent in twips are adjacent in pixels.
  RECT toPixels(const controls::Rect& rect) const;
  /// The height of a font as a parameter of CreateFont.
  int fontHeight(int tenthsOfPoint) const { return -MulDiv(tenthsOfPoint, dpi_, 720); }
  /// Grows a client area by the system's frame, with a menu of one line.
  void growByFrame(RECT& client, DWORD style, DWORD exStyle, bool menu) const;

 private:
  static constexpr int kTwipsPerInch = 1440;

  int dpi_;
};

}  // namespace win32
