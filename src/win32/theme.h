#pragma once

#include <windows.h>

#include <uxtheme.h>

namespace win32 {

/// The system's functions for drawing with the user's theme. Their library is loaded on the first
/// call, only from the system folder, never from beside the program. Without it there is no theme.
HTHEME openTheme(HWND window, const wchar_t* classes);
void closeTheme(HTHEME theme) noexcept;
void drawThemeBackground(HTHEME theme, HDC context, int part, int state, const RECT& area);

}  // namespace win32
