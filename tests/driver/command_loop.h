#pragma once

#include "driver/driver.h"

namespace driver {

/// Reads commands from standard input and answers each on standard output, until the input ends or
/// a command ends it. The end of the input is Ending::Quit.
Ending runCommands(Stage& stage);

}  // namespace driver
