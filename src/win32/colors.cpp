#include "win32/colors.h"

namespace win32 {

using controls::Color;

COLORREF colorOf(Color color) {
  switch (color.scheme()) {
    case Color::Scheme::Window:
      return GetSysColor(COLOR_WINDOW);
    case Color::Scheme::ButtonFace:
      return GetSysColor(COLOR_BTNFACE);
    default:
      return color.value();
  }
}

COLORREF textColorOn(Color background) {
  if (background.scheme() == Color::Scheme::Window) return GetSysColor(COLOR_WINDOWTEXT);
  if (background.scheme() == Color::Scheme::ButtonFace) return GetSysColor(COLOR_BTNTEXT);
  return isDark(background.value()) ? RGB(255, 255, 255) : RGB(0, 0, 0);
}

int brightnessOf(COLORREF color) {
  // Weighted by the sensitivity of the eye.
  return (299 * GetRValue(color) + 587 * GetGValue(color) + 114 * GetBValue(color)) / 1000;
}

bool isDark(COLORREF color) {
  return brightnessOf(color) < 128;
}

}  // namespace win32
