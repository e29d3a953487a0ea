#pragma once

#include <windows.h>

#include <uxtheme.h>

namespace win32 {

/// The system's functions that draw by the user's theme. Their library is loaded when the first of
/// them is called, from the system's own folder: one that lies beside the program is not taken.
/// Where it cannot be had there is no theme.
HTHEME openTheme(HWND window, const wchar_t* classes);
void closeTheme(HTHEME theme) noexcept;
void drawThemeBackground(HTHEME theme, HDC context, int part, int state, const RECT& area);
/// Leaves the colour as it is where the theme has none.
void getThemeColor(HTHEME theme, int part, int state, int property, COLORREF& color);

}  // namespace win32
