#pragma once

#include <windows.h>

#include "controls/geometry.h"

namespace win32 {

/// How twips and pixels stand to each other on a monitor.
class Scale {
 public:
  explicit Scale(UINT dpi) : dpi_(static_cast<int>(dpi)) {}
  /// That of the monitor that the window is on.
  static Scale of(HWND window);
  /// That of the screen as a whole, which stays the same while the user is logged on.
  static Scale ofScreen();

  int dpi() const { return dpi_; }
  int toPixels(controls::Twips twips) const { return MulDiv(twips, dpi_, kTwipsPerInch); }
  controls::Twips toTwips(int pixels) const { return MulDiv(pixels, kTwipsPerInch, dpi_); }
  /// Edges that meet in twips meet in pixels.
  RECT toPixels(const controls::Rect& rect) const;
  /// The height of a font as the system wants it.
  int fontHeight(int tenthsOfPoint) const { return -MulDiv(tenthsOfPoint, dpi_, 720); }
  /// A window's client area grown by the frame, with one line of menu, that the system draws.
  void growByFrame(RECT& client, DWORD style, DWORD exStyle, bool menu) const;

 private:
  static constexpr int kTwipsPerInch = 1440;

  int dpi_;
};

}  // namespace win32
