#pragma once

#include <windows.h>

#include "controls/color.h"

namespace win32 {

/// The least contrast with the background for readable text, and for a frame or line with a
/// meaning.
inline constexpr double kTextContrast = 4.5;
inline constexpr double kFrameContrast = 3.0;

/// The present system value of a color.
COLORREF colorOf(controls::Color color);
/// A text color that is readable on the background.
COLORREF textColorOn(controls::Color background);

/// The perceived brightness, from 0 to 255.
int brightnessOf(COLORREF color);
/// Whether light text is more readable on it than dark text.
bool isDark(COLORREF color);
/// The contrast of two colors as defined by the accessibility guidelines of the web, 1 to 21.
double contrastOf(COLORREF one, COLORREF other);
/// The color, made as much darker or lighter as that contrast takes.
COLORREF legibleOn(COLORREF background, COLORREF wanted, double contrast = kTextContrast);
/// A color between two, `part` percent of the way to the other.
COLORREF mixed(COLORREF color, COLORREF other, int part);

/// Whether the user has chosen a high-contrast or dark color scheme: then only system colors are
/// used.
bool hasOwnContrast();

}  // namespace win32
