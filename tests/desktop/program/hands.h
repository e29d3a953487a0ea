#pragma once

#include <windows.h>

#include <string_view>

namespace program {

/// The user's hands: what they do reaches whatever program is in front.

/// Types digits, letters, blanks and the operators of the keypad; '=' is its Enter key.
void type(std::string_view keys);
void press(WORD key);
/// The key while Ctrl, Alt or Shift is down.
void pressWith(WORD modifier, WORD key);

void click(POINT place);
void doubleClick(POINT place);
/// Takes hold of a window's frame at `from`, and lets go at `to`; throws NotSeen when it gets no
/// hold.
void dragWindow(HWND window, POINT from, POINT to);
/// The middle of a window on the screen.
POINT middleOf(HWND window);

}  // namespace program
