#include "win32/light_icon.h"

#include <cstdint>
#include <vector>

#include "win32/colors.h"

namespace win32 {
namespace {

// Copies of the bitmaps of an icon.
struct Parts {
  explicit Parts(HICON icon) { GetIconInfo(icon, &info); }
  ~Parts() {
    DeleteObject(info.hbmColor);
    DeleteObject(info.hbmMask);
  }
  Parts(const Parts&) = delete;
  Parts& operator=(const Parts&) = delete;

  ICONINFO info = {};
};

BITMAPINFO formatOf(HBITMAP bitmap) {
  BITMAP size = {};
  GetObjectW(bitmap, sizeof size, &size);
  BITMAPINFO format = {};
  format.bmiHeader.biSize = sizeof format.bmiHeader;
  format.bmiHeader.biWidth = size.bmWidth;
  format.bmiHeader.biHeight = size.bmHeight;
  format.bmiHeader.biPlanes = 1;
  format.bmiHeader.biBitCount = 32;
  return format;
}

// Brighter pixels are the areas between the lines, and stay unchanged.
constexpr int kBrightestLine = 80;

std::uint32_t lighter(std::uint32_t pixel) {
  const auto red = static_cast<BYTE>(pixel >> 16);
  const auto green = static_cast<BYTE>(pixel >> 8);
  const auto blue = static_cast<BYTE>(pixel);
  const bool seen = pixel >> 24 != 0;
  if (!seen || brightnessOf(RGB(red, green, blue)) > kBrightestLine) return pixel;
  const auto raised = [](std::uint32_t part) { return 255 - (255 - part) / 4; };
  return (pixel & 0xFF000000) | raised(red) << 16 | raised(green) << 8 | raised(blue);
}

}  // namespace

OwnedIcon lightened(HICON icon) {
  const Parts parts(icon);
  if (!parts.info.hbmColor) return OwnedIcon(CopyIcon(icon));
  BITMAPINFO format = formatOf(parts.info.hbmColor);
  const auto lines = static_cast<UINT>(format.bmiHeader.biHeight);
  std::vector<std::uint32_t> pixels(static_cast<std::size_t>(format.bmiHeader.biWidth) * lines);
  const HDC screen = GetDC(nullptr);
  GetDIBits(screen, parts.info.hbmColor, 0, lines, pixels.data(), &format, DIB_RGB_COLORS);
  for (std::uint32_t& pixel : pixels) pixel = lighter(pixel);
  SetDIBits(screen, parts.info.hbmColor, 0, lines, pixels.data(), &format, DIB_RGB_COLORS);
  ReleaseDC(nullptr, screen);
  ICONINFO info = parts.info;
  return OwnedIcon(CreateIconIndirect(&info));
}

}  // namespace win32
