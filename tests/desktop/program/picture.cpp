#include "desktop/program/picture.h"

namespace program {
namespace {

// From the top down, four bytes a dot.
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

bool Picture::save(const std::wstring& file) const {
  const BITMAPINFOHEADER header = headerOf(width_, height_);
  BITMAPFILEHEADER start = {};
  start.bfType = 0x4D42;
  start.bfOffBits = sizeof start + sizeof header;
  const std::size_t bytes = dots_.size() * sizeof(std::uint32_t);
  start.bfSize = start.bfOffBits + static_cast<DWORD>(bytes);
  const HANDLE out = CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                 FILE_ATTRIBUTE_NORMAL, nullptr);
  if (out == INVALID_HANDLE_VALUE) return false;
  const auto put = [out](const void* data, std::size_t size) {
    DWORD written = 0;
    return WriteFile(out, data, static_cast<DWORD>(size), &written, nullptr) && written == size;
  };
  const bool written =
      put(&start, sizeof start) && put(&header, sizeof header) && put(dots_.data(), bytes);
  return CloseHandle(out) && written;
}

COLORREF colorAt(POINT place) {
  const HDC screen = GetDC(nullptr);
  const COLORREF color = GetPixel(screen, place.x, place.y);
  ReleaseDC(nullptr, screen);
  return color;
}

}  // namespace program
