#include "win32/colors.h"

#include <algorithm>
#include <cmath>

namespace win32 {

using controls::Color;

namespace {

constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kWhite = RGB(255, 255, 255);

// The linear value of a color component, from 0 to 1.
double lightOf(BYTE part) {
  const double share = part / 255.0;
  return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double lightOf(COLORREF color) {
  return 0.2126 * lightOf(GetRValue(color)) + 0.7152 * lightOf(GetGValue(color)) +
         0.0722 * lightOf(GetBValue(color));
}

}  // namespace

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
  return isDark(background.value()) ? kWhite : kBlack;
}

int brightnessOf(COLORREF color) {
  // Weighted by the sensitivity of the eye.
  return (299 * GetRValue(color) + 587 * GetGValue(color) + 114 * GetBValue(color)) / 1000;
}

bool isDark(COLORREF color) {
  return contrastOf(color, kWhite) > contrastOf(color, kBlack);
}

double contrastOf(COLORREF one, COLORREF other) {
  const double light = lightOf(one);
  const double otherLight = lightOf(other);
  return (std::max(light, otherLight) + 0.05) / (std::min(light, otherLight) + 0.05);
}

COLORREF legibleOn(COLORREF background, COLORREF wanted, double contrast) {
  constexpr int kStep = 4;
  const COLORREF extreme = isDark(background) ? kWhite : kBlack;
  for (int part = 0; part < 100; part += kStep) {
    const COLORREF color = mixed(wanted, extreme, part);
    if (contrastOf(background, color) >= contrast) return color;
  }
  return extreme;
}

COLORREF mixed(COLORREF color, COLORREF other, int part) {
  const auto between = [part](int from, int to) { return from + (to - from) * part / 100; };
  return RGB(between(GetRValue(color), GetRValue(other)),
             between(GetGValue(color), GetGValue(other)),
             between(GetBValue(color), GetBValue(other)));
}

bool hasOwnContrast() {
  HIGHCONTRASTW scheme = {};
  scheme.cbSize = sizeof scheme;
  SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof scheme, &scheme, 0);
  return (scheme.dwFlags & HCF_HIGHCONTRASTON) != 0 || isDark(GetSysColor(COLOR_BTNFACE));
}

}  // namespace win32
