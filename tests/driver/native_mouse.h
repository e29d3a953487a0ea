#pragma once

#include <windows.h>

#include "controls/text_box.h"
#include "driver/native_handles.h"

namespace driver {

enum class MouseButton { Left, Right };

/// The input of pressing or releasing a mouse button; carries `extra`.
INPUT mouseButton(MouseButton button, bool up, ULONG_PTR extra);

/// Whether it is a button, which captures the mouse while it is pressed and acts when it is
/// released.
bool isButton(HWND control);

/// Whether the window and the screen show its center, unless another window covers it.
bool isShown(HWND control);
/// False also while a message is shown over its window.
bool takesInput(HWND control);
/// A place near the center of a control where a click reaches it, and never the same twice in a
/// row, which would make a double click. False if the control is off the screen or covered. On the
/// thread of the control, where what lets clicks through covers nothing.
bool placeToClick(HWND control, POINT& place);

/// The center of an item of a window's menu bar, or of an open menu; false if a click there would
/// not reach it.
bool placeInBar(HWND window, const MenuPlace& item, POINT& place);
bool placeInMenu(const MenuPlace& item, POINT& place);
/// The window that has captured the mouse on the thread of `window`; null without one.
HWND mouseCapture(HWND window);

/// An item of the open context menu of a text box: whether it is grayed, and its position.
struct BoxMenuItem {
  bool grey = false;
  bool seen = false;
  POINT place = {};
};
BoxMenuItem findInBoxMenu(controls::BoxCommand command);

}  // namespace driver
