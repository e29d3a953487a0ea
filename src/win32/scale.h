#pragma once

#include <windows.h>

#include "controls/geometry.h"

namespace win32 {

/// Converts between twips and pixels at a resolution. The accessibility text size enlarges windows
/// and everything in them; it does not move them.
class Scale {
 public:
  /// The scale of the window's monitor.
  static Scale of(HWND window);
  /// The scale of the whole screen, which does not change while the user is logged on.
  static Scale ofScreen();
  /// The scale of a window at the resolution of its monitor, with the user's text size, limited so
  /// that a window of the needed size fits on the monitor, that far from its corner.
  static Scale at(UINT monitorDpi, HWND window, const controls::Rect& needed);

  /// Pixels per inch of the window, text size included.
  int dpi() const { return dpi_; }
  UINT monitorDpi() const { return monitorDpi_; }
  int toPixels(controls::Twips twips) const { return MulDiv(twips, dpi_, kTwipsPerInch); }
  controls::Twips toTwips(int pixels) const { return MulDiv(pixels, kTwipsPerInch, dpi_); }
  /// Rectangles that are adjacent in twips are adjacent in pixels.
  RECT toPixels(const controls::Rect& rect) const;
  /// The height of a font as a parameter of CreateFont.
  int fontHeight(int tenthsOfPoint) const { return -MulDiv(tenthsOfPoint, dpi_, 720); }
  /// A system metric, such as SM_CXVSCROLL, at the resolution of the monitor.
  int metric(int index) const;
  /// Grows a client area by the system's frame, with a menu of one line.
  void growByFrame(RECT& client, DWORD style, DWORD exStyle, bool menu) const;

 private:
  static constexpr int kTwipsPerInch = 1440;

  explicit Scale(UINT dpi, int textPercent = 100)
      : monitorDpi_(dpi), dpi_(MulDiv(static_cast<int>(dpi), textPercent, 100)) {}

  UINT monitorDpi_;
  int dpi_;
};

}  // namespace win32
