#pragma once

#include <windows.h>

#include <vector>

#include "controls/window.h"

namespace driver {

HWND handleOf(const controls::Window& window);
HWND handleOf(controls::Control& control);

/// Whether a window is the program's.
bool isOurs(HWND window);
/// Whether a window of the program is in front.
bool isInFront();

/// An item of a menu on the screen.
struct MenuPlace {
  HMENU menu;
  int position;
};

MenuPlace placeOf(const controls::Window& window, const controls::MenuItem& item);
/// The items that lead to an item of the window's menu, from the bar down, and the item itself.
/// Nothing when one of them is grey.
std::vector<MenuPlace> wayTo(const controls::Window& window, const controls::MenuItem& item);

}  // namespace driver
