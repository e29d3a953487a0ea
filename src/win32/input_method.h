#pragma once

#include <windows.h>

namespace win32 {

/// No text is composed in the window: what is typed there are the keys of a machine.
void switchOffComposition(HWND window);

/// Text is composed at this place of the window, in this font.
void composeAt(HWND window, POINT place, HFONT font);

}  // namespace win32
