#pragma once

#include <string>
#include <vector>

namespace program {

/// The files in which the program of that name keeps the tapes of its runs.
std::vector<std::wstring> keptTapes(const std::wstring& programName);
/// Deletes those that no run has open.
void clearKeptTapes(const std::wstring& programName);

}  // namespace program
