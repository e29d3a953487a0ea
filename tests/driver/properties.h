#pragma once

#include <string>

#include "driver/stage.h"

namespace driver {

/// A property of a window, control or menu item by its name. Raises CommandError when there is no
/// such thing, or when it lacks the property. Only within Stage::inspect.
Json readProperty(Stage& stage, const std::string& name, const std::string& property);

/// Everything that a person sees of the main window. Only within Stage::inspect.
Json takeSnapshot(const controls::Window& main);

}  // namespace driver
