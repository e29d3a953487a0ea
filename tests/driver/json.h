#pragma once

#include <nlohmann/json.hpp>

namespace driver {

/// Keeps the keys in the order in which they were put in.
using Json = nlohmann::ordered_json;

}  // namespace driver
