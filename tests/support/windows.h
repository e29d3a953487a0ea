#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace support {

/// Reads the windows of another program.

/// The answer of a window to a message; 0 if it does not answer.
LRESULT ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

/// The text of a window; empty if it does not answer.
std::wstring textOf(HWND window);
std::wstring classOf(HWND window);
DWORD processOf(HWND window);

/// All visible windows of the desktop, from front to back.
std::vector<HWND> shownWindows();
/// The visible children of a window.
std::vector<HWND> shownChildren(HWND window);
/// The first visible child of a class; null without one.
HWND childOfClass(HWND window, std::wstring_view name);
/// The position on the screen.
RECT placeOf(HWND window);

}  // namespace support
