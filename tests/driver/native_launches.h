#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace driver {

/// The open windows of the programs that were started here.
std::vector<HWND> windowsOfStarted();
std::vector<HWND> windowsSince(const std::vector<HWND>& before);

/// Waits until the text box of the window has a text. False if it takes too long.
bool waitForText(HWND window);
/// Waits until a window of a started program has opened, and returns it; null if it takes too long.
HWND waitForWindowSince(const std::vector<HWND>& before);
/// The text in the text box of the window, once there is one; empty if it takes too long.
std::string textShownIn(HWND window);
/// Closes a window and discards its text.
void closeUnsaved(HWND window);

}  // namespace driver
