#pragma once

#include <windows.h>

#include "controls/text_box.h"
#include "win32/colors.h"

namespace win32 {

/// The colours that the lines of the tape are written in. Each can be read on the background,
/// whichever the user has chosen; where the user's system has colours of its own for who sees
/// little, all lines have one.
struct TapeInk {
  COLORREF background = 0;
  COLORREF plain = 0;
  COLORREF takenOff = 0;
  COLORREF note = 0;
  /// Whether a line stands above a total.
  bool rules = false;

  static TapeInk on(COLORREF background, COLORREF text);
  COLORREF of(controls::LineStyle style) const;
};

/// Whether a line is written in bold letters, with a rule above it.
inline bool isTotal(controls::LineStyle style) {
  return style == controls::LineStyle::Total || style == controls::LineStyle::NegativeTotal;
}

}  // namespace win32
