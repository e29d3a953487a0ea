#pragma once

#include <windows.h>

#include <vector>

#include "controls/color.h"
#include "controls/layout.h"

namespace win32 {

/// What a key shows of itself besides its face.
struct KeyState {
  bool disabled = false;
  bool hot = false;
  bool pressed = false;
  /// A toggle that stays down.
  bool down = false;
  bool focused = false;
};

struct KeyColors {
  COLORREF face;
  COLORREF frame;
  COLORREF text;
};

/// The colours of a key: a tint for each kind, so that the eye finds it; a colour that the program
/// has given the key goes before. The text can be read on the face, and the frame is seen on the
/// window. For a user with colours that serve to see more they are the system's alone.
KeyColors keyColors(controls::KeyKind kind, controls::Color given, const KeyState& state);

/// One colour of a key from so many pixels within its edge on.
struct KeyLayer {
  int inset;
  COLORREF color;
};

/// Draws a key with round corners, its layers from the outside in.
void drawKeyShape(HDC context, const RECT& area, int radius, const std::vector<KeyLayer>& layers);

}  // namespace win32
