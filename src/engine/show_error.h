#pragma once

#include "controls/desktop.h"

namespace engine {

/// Shows the number and the description of a run-time error in a message box.
void showError(controls::Desktop& desktop, int number);

}  // namespace engine
