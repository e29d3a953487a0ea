#pragma once

#include <string>

#include "driver/driver.h"

namespace fuzz {

/// Checks what must be true after every command. Returns what is wrong, or an empty text.
std::string findBroken(driver::Driver& driver);

/// The stored settings of the financial calculator.
driver::Json storedFields(driver::Driver& driver);
/// The settings while it is not loaded, when none may change; null while it is loaded.
driver::Json fieldsAtRest(driver::Driver& driver);

}  // namespace fuzz
