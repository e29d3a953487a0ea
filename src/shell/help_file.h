#pragma once

#include <string>

#include "controls/desktop.h"

namespace shell {

/// The path of the program's help file.
std::string findHelpFile(controls::Desktop& desktop);

}  // namespace shell
