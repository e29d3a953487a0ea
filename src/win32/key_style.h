#pragma once

#include <windows.h>

#include <vector>

#include "controls/color.h"
#include "controls/layout.h"

namespace win32 {

/// The state of a key, besides its face.
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

/// The colors of a key: a tint for each kind, unless the program has given the key another color.
/// The text is readable on the face, and the frame visible on the window. In high contrast and dark
/// schemes, only system colors are used.
KeyColors keyColors(controls::KeyKind kind, controls::Color given, const KeyState& state);

/// One color of a key, starting this many pixels inside its edge.
struct KeyLayer {
  int inset;
  COLORREF color;
};

/// Draws a key with rounded corners, its layers from the outside in.
void drawKeyShape(HDC context, const RECT& area, int radius, const std::vector<KeyLayer>& layers);

}  // namespace win32
