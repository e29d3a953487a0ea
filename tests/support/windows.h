#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace support {

/// What one program can see of the windows of another.

/// What a window answers; 0 when it does not.
LRESULT ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

/// The text that a window gives away; empty when it does not answer.
std::wstring textOf(HWND window);
std::wstring classOf(HWND window);
DWORD processOf(HWND window);

/// All windows of the desktop that are shown, the front one first.
std::vector<HWND> shownWindows();
/// The children of a window that are shown.
std::vector<HWND> shownChildren(HWND window);
/// The first child of a class that is shown; null without one.
HWND childOfClass(HWND window, std::wstring_view name);
/// The place on the screen.
RECT placeOf(HWND window);

}  // namespace support
