#pragma once

#include <windows.h>

#include <string_view>

namespace win32 {

/// Gives a box without a visible label in front of it a name for screen readers. An empty name
/// leaves it to the label.
void giveAccessibleName(HWND box, std::string_view name);

}  // namespace win32
