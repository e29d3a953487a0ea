#pragma once

// Shared with the resource compiler.
#define TALLYREX_PROGRAM_ICON 1

namespace win32 {

inline constexpr int kProgramIcon = TALLYREX_PROGRAM_ICON;

}  // namespace win32
