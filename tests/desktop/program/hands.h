#pragma once

#include <windows.h>

#include <string_view>

#include "support/retries.h"
#include "support/wait.h"

namespace program {

/// The user's input, which goes to whatever program is in front.

/// Types digits, letters, blanks and keypad operators; '=' is the keypad's Enter key.
void type(std::string_view keys);
void press(WORD key);
/// Presses the key while Ctrl, Alt or Shift is down.
void pressWith(WORD modifier, WORD key);

void click(POINT place);

/// Clicks there until the click has its effect, a few times at most: the system may report the
/// mouse late where it was before, and the click goes there.
template <class Effect>
void clickUntil(POINT place, Effect effect) {
  constexpr int kTries = 4;
  constexpr ULONGLONG kEffectIsLate = 3'000;
  for (int i = 0; i < kTries; ++i) {
    if (i > 0) support::noteRetry("a click");
    click(place);
    if (support::eventually(effect, kEffectIsLate)) return;
  }
}

void doubleClick(POINT place);
/// Presses the mouse button on a window's frame, and waits until it is being dragged; throws
/// NotSeen if it cannot be grabbed.
void holdFrame(HWND window, POINT place);
void releaseMouse();
/// Drags a window's frame from `from` to `to`, and waits until the system's drag is over; throws
/// NotSeen.
void dragWindow(HWND window, POINT from, POINT to);
/// The center of a window on the screen.
POINT middleOf(HWND window);

}  // namespace program
