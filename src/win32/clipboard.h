#pragma once

#include <string_view>

#include "controls/desktop.h"

namespace win32 {

controls::Clipping readClipboard();
/// False when another program keeps the clipboard locked.
bool writeClipboard(std::string_view text);

}  // namespace win32
