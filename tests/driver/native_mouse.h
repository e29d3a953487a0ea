#pragma once

#include <windows.h>

#include <vector>

#include "driver/native_handles.h"

namespace driver {

enum class MouseButton { Left, Right };

/// What the mouse sends that goes to a place of the screen and presses a button there, or lets it
/// go. All of it carries `extra`.
std::vector<INPUT> mouseInputs(POINT place, MouseButton button, bool up, ULONG_PTR extra);

/// A place within a control where a click reaches it, near its middle, and never the same one twice
/// in a row: the system would take two clicks for a double click. False when the control lies
/// beyond the screen, or behind another window.
bool placeToClick(HWND control, POINT& place);

/// The middle of an item of a window's menu bar; false when a click there would not reach it. The
/// middle of an item of a menu that is open; false when it is not.
bool placeInBar(HWND window, const MenuPlace& item, POINT& place);
bool placeInMenu(const MenuPlace& item, POINT& place);
/// Whether the thread of that window has a menu open.
bool isMenuOpen(HWND window);
/// The item of the open shortcut menu of a text box that pastes. False when there is none that can
/// be chosen.
bool placeOfPaste(POINT& place);

}  // namespace driver
