#include "win32/scale.h"

namespace win32 {
namespace {

// Windows before 10 has no resolution per monitor.
template <class Function>
Function* userFunction(const char* name) {
  const FARPROC found = GetProcAddress(GetModuleHandleW(L"user32.dll"), name);
  return reinterpret_cast<Function*>(reinterpret_cast<void*>(found));
}

}  // namespace

Scale Scale::of(HWND window) {
  static const auto getDpiForWindow = userFunction<UINT WINAPI(HWND)>("GetDpiForWindow");
  const UINT dpi = getDpiForWindow ? getDpiForWindow(window) : 0;
  return dpi ? Scale(dpi) : ofScreen();
}

Scale Scale::ofScreen() {
  const HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
  ReleaseDC(nullptr, screen);
  return Scale(static_cast<UINT>(dpi));
}

RECT Scale::toPixels(const controls::Rect& rect) const {
  return {toPixels(rect.left), toPixels(rect.top), toPixels(rect.left + rect.width),
          toPixels(rect.top + rect.height)};
}

void Scale::growByFrame(RECT& client, DWORD style, DWORD exStyle, bool menu) const {
  static const auto adjustForDpi =
      userFunction<BOOL WINAPI(RECT*, DWORD, BOOL, DWORD, UINT)>("AdjustWindowRectExForDpi");
  if (adjustForDpi) {
    adjustForDpi(&client, style, menu, exStyle, static_cast<UINT>(dpi_));
  } else {
    AdjustWindowRectEx(&client, style, menu, exStyle);
  }
}

}  // namespace win32
