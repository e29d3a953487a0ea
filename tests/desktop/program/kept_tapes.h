#pragma once

#include <string>
#include <vector>

namespace program {

/// The files in which the program of that name keeps its tapes.
std::vector<std::wstring> keptTapes(const std::wstring& programName);
/// Deletes those that are not open in a running program.
void clearKeptTapes(const std::wstring& programName);

}  // namespace program
