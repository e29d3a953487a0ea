#pragma once

#include <windows.h>

#include "controls/window.h"

namespace driver {

HWND handleOf(const controls::Window& window);
HWND handleOf(controls::Control& control);

/// The command that the menu of the window sends for an item. 0 when the item, or a menu that holds
/// it, is grey on the screen.
UINT commandOf(const controls::Window& window, const controls::MenuItem& item);

}  // namespace driver
