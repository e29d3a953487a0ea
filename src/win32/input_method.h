#pragma once

#include <windows.h>

namespace win32 {

/// Turns off text composition in the window, where keys are those of a machine.
void switchOffComposition(HWND window);

/// Places the composition of text in the window, with this font.
void composeAt(HWND window, POINT place, HFONT font);

}  // namespace win32
