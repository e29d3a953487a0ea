#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace driver {

/// The windows of other programs that stand open. What is new among them after a program was
/// started is that program's.
std::vector<HWND> windowsOfOthers();
std::vector<HWND> windowsSince(const std::vector<HWND>& before);

/// Waits until a text has come to the text box of the window. False when none comes.
bool waitForText(HWND window);
/// Waits until a window of another program has opened, and gives it; null when none comes.
HWND waitForWindowSince(const std::vector<HWND>& before);
/// The text in the text box of the window, once it has come there; empty when none comes.
std::string textShownIn(HWND window);
/// Closes a window whose text nobody wants to keep.
void closeUnsaved(HWND window);

}  // namespace driver
