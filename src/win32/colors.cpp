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
  const COLORREF color = background.value();
  // The eye sees green as brightest, then red.
  const int brightness = 299 * GetRValue(color) + 587 * GetGValue(color) + 114 * GetBValue(color);
  return brightness < 128'000 ? RGB(255, 255, 255) : RGB(0, 0, 0);
}

}  // namespace win32
