#pragma once

#include <windows.h>

#include "controls/color.h"

namespace win32 {

/// The colour as the system has it now.
COLORREF colorOf(controls::Color color);
/// A text colour that can be read on it.
COLORREF textColorOn(controls::Color background);

/// How bright the eye sees it, from 0 to 255.
int brightnessOf(COLORREF color);
/// Whether light text is read better on it than dark.
bool isDark(COLORREF color);

}  // namespace win32
