#include "win32/key_style.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "win32/colors.h"

namespace win32 {

using controls::KeyKind;

namespace {

struct Tint {
  COLORREF face;
  COLORREF text;
};

// How far, in percent, a state differs from the color of a face at rest.
constexpr int kHot = 16;
constexpr int kPressed = 30;

Tint tintOf(KeyKind kind) {
  switch (kind) {
    case KeyKind::Operator:
      return {RGB(0xDC, 0xE8, 0xF6), RGB(0x10, 0x2A, 0x5C)};
    case KeyKind::Strong:
      return {RGB(0x1B, 0x4F, 0x91), RGB(0xFF, 0xFF, 0xFF)};
    case KeyKind::Clear:
      return {RGB(0xF9, 0xE4, 0xDB), RGB(0x6E, 0x20, 0x10)};
    case KeyKind::Memory:
      return {RGB(0xE9, 0xE3, 0xF5), RGB(0x3C, 0x28, 0x6E)};
    case KeyKind::Toggle:
      return {RGB(0xE4, 0xE4, 0xE4), RGB(0x20, 0x20, 0x20)};
    default:
      return {RGB(0xFF, 0xFF, 0xFF), RGB(0x00, 0x00, 0x00)};
  }
}

// With a high-contrast scheme, keys use its colors only.
KeyColors contrastColors(const KeyState& state) {
  const COLORREF face = GetSysColor(COLOR_BTNFACE);
  const COLORREF text = GetSysColor(state.disabled ? COLOR_GRAYTEXT : COLOR_BTNTEXT);
  const COLORREF chosen = GetSysColor(COLOR_HIGHLIGHTTEXT);
  if (state.down || state.pressed) return {GetSysColor(COLOR_HIGHLIGHT), chosen, chosen};
  return {face, state.hot ? GetSysColor(COLOR_HIGHLIGHT) : text, text};
}

KeyColors lightColors(KeyKind kind, const KeyState& state) {
  const COLORREF window = GetSysColor(COLOR_BTNFACE);
  const COLORREF strong = tintOf(KeyKind::Strong).face;
  if (state.disabled) return {window, mixed(window, RGB(0, 0, 0), 25), GetSysColor(COLOR_GRAYTEXT)};
  Tint tint = state.down ? tintOf(KeyKind::Strong) : tintOf(kind);
  // A dark face gets lighter under the mouse and darker when pressed; a light one gets more color.
  const bool dark = isDark(tint.face);
  const COLORREF lit = dark ? RGB(0xFF, 0xFF, 0xFF) : strong;
  const COLORREF deep = dark ? RGB(0x00, 0x00, 0x00) : strong;
  if (state.hot) tint.face = mixed(tint.face, lit, kHot);
  if (state.pressed) tint.face = mixed(tint.face, deep, kPressed);
  const COLORREF grey = state.hot ? strong : RGB(0x80, 0x80, 0x80);
  return {tint.face, legibleOn(window, grey, kFrameContrast), legibleOn(tint.face, tint.text)};
}

// The distance of a point from the edge of a shape with rounded corners; negative outside.
double depthOf(double x, double y, double width, double height, double radius) {
  const double beside = std::min(x, width - x);
  const double below = std::min(y, height - y);
  if (beside >= radius || below >= radius) return std::min(beside, below);
  return radius - std::hypot(radius - beside, radius - below);
}

}  // namespace

KeyColors keyColors(KeyKind kind, controls::Color given, const KeyState& state) {
  KeyColors colors = hasOwnContrast() ? contrastColors(state) : lightColors(kind, state);
  if (given == controls::Color::buttonFace() || state.disabled) return colors;
  colors.face = colorOf(given);
  if (state.hot) colors.face = mixed(colors.face, RGB(0, 0, 0), kHot / 2);
  if (state.pressed) colors.face = mixed(colors.face, RGB(0, 0, 0), kPressed / 2);
  colors.text = isDark(colors.face) ? RGB(0xFF, 0xFF, 0xFF) : RGB(0, 0, 0);
  return colors;
}

void drawKeyShape(HDC context, const RECT& area, int radius, const std::vector<KeyLayer>& layers) {
  const int width = area.right - area.left;
  const int height = area.bottom - area.top;
  if (width <= 0 || height <= 0) return;
  const COLORREF around = GetSysColor(COLOR_BTNFACE);
  std::vector<std::uint32_t> points;
  points.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const double depth = depthOf(x + 0.5, y + 0.5, width, height, radius);
      COLORREF color = around;
      for (const KeyLayer& layer : layers) {
        const double share = std::clamp(depth - layer.inset + 0.5, 0.0, 1.0);
        color = mixed(color, layer.color, static_cast<int>(share * 100));
      }
      points.push_back(static_cast<std::uint32_t>(GetRValue(color)) << 16 |
                       static_cast<std::uint32_t>(GetGValue(color)) << 8 | GetBValue(color));
    }
  }
  BITMAPINFO format = {};
  format.bmiHeader.biSize = sizeof format.bmiHeader;
  format.bmiHeader.biWidth = width;
  format.bmiHeader.biHeight = -height;
  format.bmiHeader.biPlanes = 1;
  format.bmiHeader.biBitCount = 32;
  SetDIBitsToDevice(context, area.left, area.top, static_cast<DWORD>(width),
                    static_cast<DWORD>(height), 0, 0, 0, static_cast<UINT>(height), points.data(),
                    &format, DIB_RGB_COLORS);
}

}  // namespace win32
