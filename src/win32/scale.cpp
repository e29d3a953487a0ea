#include "win32/scale.h"

#include <algorithm>

#include "win32/work_area.h"

namespace win32 {
namespace {

// Windows before 10 has no resolution per monitor.
template <class Function>
Function* userFunction(const char* name) {
  const FARPROC found = GetProcAddress(GetModuleHandleW(L"user32.dll"), name);
  return reinterpret_cast<Function*>(reinterpret_cast<void*>(found));
}

constexpr int kPlainText = 100;

// What the user has chosen for the text of all programs, in hundredths.
int textPercent() {
  constexpr DWORD kLargest = 225;
  DWORD percent = kPlainText;
  DWORD size = sizeof percent;
  const LSTATUS found =
      RegGetValueW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Accessibility", L"TextScaleFactor",
                   RRF_RT_REG_DWORD, nullptr, &percent, &size);
  if (found != ERROR_SUCCESS) return kPlainText;
  return static_cast<int>(std::clamp<DWORD>(percent, kPlainText, kLargest));
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

Scale Scale::at(UINT monitorDpi, HWND window, const controls::Rect& needed) {
  const Scale plain(monitorDpi);
  int percent = textPercent();
  if (percent == kPlainText) return plain;
  const RECT area = workAreaOf(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST));
  const auto fitting = [&plain](LONG room, controls::Twips margin, controls::Twips size) {
    return (static_cast<int>(room) - plain.toPixels(margin)) * 100 / plain.toPixels(size);
  };
  percent = std::min(percent, fitting(area.right - area.left, needed.left, needed.width));
  percent = std::min(percent, fitting(area.bottom - area.top, needed.top, needed.height));
  return Scale(monitorDpi, std::max(percent, kPlainText));
}

RECT Scale::toPixels(const controls::Rect& rect) const {
  return {toPixels(rect.left), toPixels(rect.top), toPixels(rect.left + rect.width),
          toPixels(rect.top + rect.height)};
}

int Scale::metric(int index) const {
  static const auto metricForDpi = userFunction<int WINAPI(int, UINT)>("GetSystemMetricsForDpi");
  return metricForDpi ? metricForDpi(index, monitorDpi_) : GetSystemMetrics(index);
}

void Scale::growByFrame(RECT& client, DWORD style, DWORD exStyle, bool menu) const {
  static const auto adjustForDpi =
      userFunction<BOOL WINAPI(RECT*, DWORD, BOOL, DWORD, UINT)>("AdjustWindowRectExForDpi");
  if (adjustForDpi) {
    adjustForDpi(&client, style, menu, exStyle, monitorDpi_);
  } else {
    AdjustWindowRectEx(&client, style, menu, exStyle);
  }
}

}  // namespace win32
