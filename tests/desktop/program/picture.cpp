#include "desktop/program/picture.h"

namespace program {
namespace {

// Top-down, four bytes per pixel.
BITMAPINFOHEADER headerOf(int width, int height) {
  BITMAPINFOHEADER header = {};
  header.biSize = sizeof header;
  header.biWidth = width;
  header.biHeight = -height;
  header.biPlanes = 1;
  header.biBitCount = 32;
  header.biCompression = BI_RGB;
  return header;
}

}  // namespace

Picture::Picture(const RECT& place)
    : width_(static_cast<int>(place.right - place.left)),
      height_(static_cast<int>(place.bottom - place.top)),
      dots_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_)) {
  const HDC screen = GetDC(nullptr);
  const HDC memory = CreateCompatibleDC(screen);
  const HBITMAP bitmap = CreateCompatibleBitmap(screen, width_, height_);
  const HGDIOBJ before = SelectObject(memory, bitmap);
  BitBlt(memory, 0, 0, width_, height_, screen, place.left, place.top, SRCCOPY);
  SelectObject(memory, before);
  BITMAPINFO info = {};
  info.bmiHeader = headerOf(width_, height_);
  GetDIBits(memory, bitmap, 0, static_cast<UINT>(height_), dots_.data(), &info, DIB_RGB_COLORS);
  for (std::uint32_t& dot : dots_) dot &= 0xFFFFFF;
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
}

COLORREF colorAt(POINT place) {
  const HDC screen = GetDC(nullptr);
  const COLORREF color = GetPixel(screen, place.x, place.y);
  ReleaseDC(nullptr, screen);
  return color;
}

}  // namespace program
