#pragma once

#include <string>
#include <string_view>

#include "win32/handles.h"

namespace win32 {

/// Starts a program, with an optional file to open, in a normal window with the focus. Returns its
/// process; null if it cannot be started. A name without a folder is searched for among the
/// system's programs, never in the current folder.
OwnedHandle startProgram(const std::string& program, const std::wstring& file = {});

/// Writes a text to a new file in the user's temporary folder, and opens that in a program. False
/// if either fails.
bool openText(const std::string& program, std::string_view text);

}  // namespace win32
