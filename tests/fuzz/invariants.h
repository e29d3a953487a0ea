#pragma once

#include <string>

#include "driver/driver.h"

namespace fuzz {

/// What holds after every command, whatever the user did. Gives what is wrong, or nothing.
std::string findBroken(driver::Driver& driver);

/// What is stored of the financial calculator.
driver::Json storedFields(driver::Driver& driver);
/// The same while it is not loaded, when no field may change; nothing while it is.
driver::Json fieldsAtRest(driver::Driver& driver);

}  // namespace fuzz
