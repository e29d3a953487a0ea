#pragma once

#include <string>

#include "controls/window.h"

namespace driver {

/// What the user sees of a window that differs from what the program believes to show: its title,
/// state and size, the menu, and each control's text, place, check mark and whether it is visible,
/// enabled and has the focus. Empty when nothing does. Only within Stage::inspect.
std::string differenceOnScreen(const controls::Window& window);

}  // namespace driver
