#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace fuzz {

/// The driver's commands that a string of bytes stands for: what a person might do with the
/// program, in any order. Every string of bytes stands for some commands.
std::vector<std::string> commandStream(const std::uint8_t* data, std::size_t size);

}  // namespace fuzz
