#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace fuzz {

/// Decodes bytes as driver commands: actions of a user, in any order. Every string of bytes is
/// valid.
std::vector<std::string> commandStream(const std::uint8_t* data, std::size_t size);

}  // namespace fuzz
