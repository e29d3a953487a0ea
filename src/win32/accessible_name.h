#pragma once

#include <string_view>

#include "win32/system.h"

namespace win32 {

/// Gives a box without a visible label in front of it a name for screen readers. An empty name
/// leaves it to the label.
void giveAccessibleName(HWND box, std::string_view name);

}  // namespace win32
