#include "win32/theme.h"

#include "win32/late_function.h"

namespace win32 {
namespace {

template <class Function>
Function themeFunction(const char* name) {
  return lateFunction<Function>(L"uxtheme.dll", name);
}

}  // namespace

HTHEME openTheme(HWND window, const wchar_t* classes) {
  static const auto open = themeFunction<decltype(&OpenThemeData)>("OpenThemeData");
  return open ? open(window, classes) : nullptr;
}

void closeTheme(HTHEME theme) noexcept {
  static const auto close = themeFunction<decltype(&CloseThemeData)>("CloseThemeData");
  if (close) close(theme);
}

void drawThemeBackground(HTHEME theme, HDC context, int part, int state, const RECT& area) {
  static const auto draw = themeFunction<decltype(&DrawThemeBackground)>("DrawThemeBackground");
  if (draw) draw(theme, context, part, state, &area, nullptr);
}

}  // namespace win32
