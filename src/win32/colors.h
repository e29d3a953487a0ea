#pragma once

#include <windows.h>

#include "controls/color.h"

namespace win32 {

/// The present system value of a color.
COLORREF colorOf(controls::Color color);
/// A text color that is readable on the background.
COLORREF textColorOn(controls::Color background);

/// The perceived brightness, from 0 to 255.
int brightnessOf(COLORREF color);
/// Whether light text is more readable on it than dark text.
bool isDark(COLORREF color);

}  // namespace win32
