#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace win32 {

/// Starts a program in a normal window with the focus; its process id, nothing when it cannot be
/// started. A name without a folder is looked for where the system's programs are, never in the
/// current folder.
std::optional<DWORD> startProgram(const std::string& program);

/// Starts Notepad or a relative of it, waits for its new window, brings that to the front and
/// pastes the clipboard into it. False when any of this fails; no key has been sent then.
bool startProgramAndPaste(const std::string& program);

}  // namespace win32
