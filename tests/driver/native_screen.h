#pragma once

#include <string>

#include "controls/window.h"

namespace driver {

/// The first difference between a window on the screen and the program's own state: title, state,
/// size and menu, and each control's text, position, check mark, visibility, enabling and focus.
/// Empty without one. Only within Stage::inspect.
std::string differenceOnScreen(const controls::Window& window);

}  // namespace driver
