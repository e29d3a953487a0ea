#pragma once

#include "controls/desktop.h"

namespace engine {

/// "Error:", the number of a run-time error and its description, in a message box; of an error that
/// a fresh window would not have, the advice to open one.
void showError(controls::Desktop& desktop, int number);

}  // namespace engine
