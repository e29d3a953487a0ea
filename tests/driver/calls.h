#pragma once

#include <string>
#include <vector>

#include "driver/json.h"

namespace driver {

/// Calls one of the program's functions directly: {"value":…}, or {"raised":5} if it raised a
/// run-time error. Throws CommandError for an unknown name or wrong arguments.
Json callFunction(const std::string& name, const std::vector<Json>& arguments);

}  // namespace driver
