#pragma once

#include <windows.h>

#include <string_view>
#include <vector>

namespace driver {

enum class MouseButton { Left, Right };

/// What the mouse sends that goes to a place of the screen and presses a button there, or lets it
/// go. All of it carries `extra`.
std::vector<INPUT> mouseInputs(POINT place, MouseButton button, bool up, ULONG_PTR extra);

/// A place within a control where a click reaches it, near its middle, and never the same one twice
/// in a row: the system would take two clicks for a double click. False when the control lies
/// beyond the screen, or behind another window.
bool placeToClick(HWND control, POINT& place);

/// The open shortcut menu of this process; none without one.
HWND findShortcutMenu();
/// The middle of the item of an open menu with that caption. False when there is none that can be
/// chosen.
bool placeOfMenuItem(HWND menuWindow, std::wstring_view caption, POINT& place);

}  // namespace driver
