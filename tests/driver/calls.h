#pragma once

#include <string>
#include <vector>

#include "driver/json.h"

namespace driver {

/// One of the program's own functions, called straight: {"value":…}, or {"raised":5} when it raised
/// a run-time error. Raises CommandError for another name or wrong arguments.
Json callFunction(const std::string& name, const std::vector<Json>& arguments);

}  // namespace driver
