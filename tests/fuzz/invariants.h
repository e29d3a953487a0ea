#pragma once

#include <string>

#include "driver/driver.h"

namespace fuzz {

/// What holds after every command, whatever the user did. Gives what is wrong, or nothing.
std::string findBroken(driver::Driver& driver);

}  // namespace fuzz
