#pragma once

#include <random>
#include <string>

namespace fuzz {

/// An amount as people key and paste them, near the limits of what the program takes as often as
/// not.
std::string randomAmount(std::mt19937& random);
/// A key that acts on an amount, or nothing.
std::string randomOperator(std::mt19937& random);
/// A text that is mostly no number.
std::string randomText(std::mt19937& random);
/// The same, once in a while more of it than anybody has a use for.
std::string randomPaste(std::mt19937& random);
/// A number for the time-value functions, in JSON.
std::string randomDouble(std::mt19937& random);

}  // namespace fuzz
