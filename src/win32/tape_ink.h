#pragma once

#include <windows.h>

#include "controls/text_box.h"
#include "win32/colors.h"

namespace win32 {

/// The text colors of the tape's lines. Each is readable on the background that the user has
/// chosen; in high contrast all lines have the same color.
struct TapeInk {
  COLORREF background = 0;
  COLORREF plain = 0;
  COLORREF takenOff = 0;
  COLORREF note = 0;
  /// Whether a line is directly above a total.
  bool rules = false;

  static TapeInk on(COLORREF background, COLORREF text);
  COLORREF of(controls::LineStyle style) const;
};

/// Whether a line is bold, with a rule above it.
inline bool isTotal(controls::LineStyle style) {
  return style == controls::LineStyle::Total || style == controls::LineStyle::NegativeTotal;
}

}  // namespace win32
