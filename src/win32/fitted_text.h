#pragma once

#include <string>

#include "win32/fonts.h"

namespace win32 {

/// The font of a layout where the text is no wider in it than `room` pixels; else the same with
/// letters so much narrower, down to a pixel each, that it is.
HFONT fittedFont(Fonts& fonts, const Scale& scale, const controls::FontLayout& layout,
                 const std::wstring& text, int room);

}  // namespace win32
