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

/// All windows of the desktop, from front to back, and all children of a window; hidden ones, too.
std::vector<HWND> allWindows();
std::vector<HWND> allChildren(HWND window);
/// All visible windows of the desktop, from front to back.
std::vector<HWND> shownWindows();
/// The visible children of a window.
std::vector<HWND> shownChildren(HWND window);
/// The first visible child of a class; null without one.
HWND childOfClass(HWND window, std::wstring_view name);
/// The position on the screen.
RECT placeOf(HWND window);
POINT middleOf(const RECT& place);
/// A place on the title bar of a window at that position, by which it can be dragged.
POINT titleOf(const RECT& place);
/// What the thread of a window says about its focus, mouse and caret.
GUITHREADINFO inputStateOf(HWND window);

}  // namespace support
