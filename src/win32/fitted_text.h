#pragma once

#include <string>

#include "win32/fonts.h"

namespace win32 {

/// The font of a layout, with letters made narrower, down to one pixel, until the text is at most
/// `room` pixels wide.
HFONT fittedFont(Fonts& fonts, const Scale& scale, const controls::FontLayout& layout,
                 const std::wstring& text, int room);

}  // namespace win32
