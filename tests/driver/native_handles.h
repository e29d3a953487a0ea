#pragma once

#include <windows.h>

#include <vector>

#include "controls/window.h"

namespace driver {

HWND handleOf(const controls::Window& window);
HWND handleOf(controls::Control& control);

/// Whether a window belongs to the program.
bool isOurs(HWND window);
/// Whether a window of the program is in front.
bool isInFront();

/// An item of a menu on the screen.
struct MenuPlace {
  HMENU menu;
  int position;
};

MenuPlace placeOf(const controls::Window& window, const controls::MenuItem& item);
/// The path to an item of the window's menu, from the bar to the item itself. Empty if one of them
/// is grayed.
std::vector<MenuPlace> wayTo(const controls::Window& window, const controls::MenuItem& item);

}  // namespace driver
