#pragma once

#include <string>
#include <string_view>

#include "win32/handles.h"

namespace win32 {

/// Starts a program in a normal window with the focus; its process, null when it cannot be started.
/// It is given a file to open where one is named. A name without a folder is looked for where the
/// system's programs are, never in the current folder.
OwnedHandle startProgram(const std::string& program, const std::wstring& file = {});

/// Shows a text in a program that opens text files, by a file of its own in the user's folder for
/// temporary files. False when that cannot be written, or the program not be started.
bool openText(const std::string& program, std::string_view text);

}  // namespace win32
