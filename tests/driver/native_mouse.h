#pragma once

#include <windows.h>

#include <vector>

#include "controls/text_box.h"
#include "driver/native_handles.h"

namespace driver {

enum class MouseButton { Left, Right };

/// What the mouse sends when a button of it is pressed, or let go; carries `extra`.
INPUT mouseButton(MouseButton button, bool up, ULONG_PTR extra);

/// Whether it is pushed by a click: it holds the mouse until that comes up, and what it does comes
/// then.
bool isButton(HWND control);

/// A place within a control where a click reaches it, near its middle, and never the same one twice
/// in a row: the system would take two clicks for a double click. False when the control lies
/// beyond the screen, or behind another window.
bool placeToClick(HWND control, POINT& place);

/// The middle of an item of a window's menu bar; false when a click there would not reach it. The
/// middle of an item of a menu that is open; false when it is not.
bool placeInBar(HWND window, const MenuPlace& item, POINT& place);
bool placeInMenu(const MenuPlace& item, POINT& place);
/// The window that gets all that the mouse does, on the thread of `window`: one that is pressed, or
/// that has a menu open. Nothing without one.
HWND mouseCapture(HWND window);

/// An item of the menu of a text box, where it is open: whether it is grey, and where it is seen.
struct BoxMenuItem {
  bool grey = false;
  bool seen = false;
  POINT place = {};
};
BoxMenuItem findInBoxMenu(controls::BoxCommand command);

}  // namespace driver
