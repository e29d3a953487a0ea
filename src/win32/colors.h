#pragma once

#include <windows.h>

#include "controls/color.h"

namespace win32 {

/// The colour as the system has it now.
COLORREF colorOf(controls::Color color);
/// A text colour that can be read on it.
COLORREF textColorOn(controls::Color background);

}  // namespace win32
