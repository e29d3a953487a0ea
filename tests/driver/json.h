#pragma once

#include <nlohmann/json.hpp>

namespace driver {

/// Keeps the keys in the order of insertion.
using Json = nlohmann::ordered_json;

}  // namespace driver
