#include "support/picture.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

namespace support {
namespace {

// A window counts as painted when two pictures, this many milliseconds apart, are equal.
constexpr DWORD kRest = 20;
constexpr int kMostLooks = 20;

double light(int part) {
  const double share = part / 255.0;
  return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double light(COLORREF color) {
  return 0.2126 * light(GetRValue(color)) + 0.7152 * light(GetGValue(color)) +
         0.0722 * light(GetBValue(color));
}

}  // namespace

// The parent is painted first; otherwise it could paint over the picture.
Picture::Picture(HWND window) {
  RedrawWindow(GetAncestor(window, GA_ROOT), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
  RECT client;
  GetClientRect(window, &client);
  width_ = client.right;
  height_ = client.bottom;
  const HDC context = GetDC(window);
  std::vector<COLORREF> before;
  for (int i = 0; i < kMostLooks && (i == 0 || points_ != before); ++i) {
    before = std::exchange(points_, {});
    Sleep(kRest);
    copyFrom(context, {});
  }
  ReleaseDC(window, context);
}

Picture::Picture(const RECT& ofScreen)
    : width_(ofScreen.right - ofScreen.left), height_(ofScreen.bottom - ofScreen.top) {
  const HDC screen = GetDC(nullptr);
  copyFrom(screen, {ofScreen.left, ofScreen.top});
  ReleaseDC(nullptr, screen);
}

Picture::Picture(HDC context, SIZE size)
    : width_(static_cast<int>(size.cx)), height_(static_cast<int>(size.cy)) {
  copyFrom(context, {});
}

void Picture::copyFrom(HDC context, POINT corner) {
  points_.resize(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_));
  const HDC memory = CreateCompatibleDC(context);
  const HBITMAP bitmap = CreateCompatibleBitmap(context, width_, height_);
  const HGDIOBJ before = SelectObject(memory, bitmap);
  BitBlt(memory, 0, 0, width_, height_, context, corner.x, corner.y, SRCCOPY);
  SelectObject(memory, before);
  BITMAPINFO format = {};
  format.bmiHeader.biSize = sizeof format.bmiHeader;
  format.bmiHeader.biWidth = width_;
  format.bmiHeader.biHeight = -height_;
  format.bmiHeader.biPlanes = 1;
  format.bmiHeader.biBitCount = 32;
  std::vector<std::uint32_t> pixels(points_.size());
  GetDIBits(memory, bitmap, 0, static_cast<UINT>(height_), pixels.data(), &format, DIB_RGB_COLORS);
  DeleteObject(bitmap);
  DeleteDC(memory);
  std::transform(pixels.begin(), pixels.end(), points_.begin(), [](std::uint32_t pixel) {
    return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
  });
}

double contrast(COLORREF one, COLORREF other) {
  const double a = light(one);
  const double b = light(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

}  // namespace support
