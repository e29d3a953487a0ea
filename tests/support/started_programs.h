#pragma once

#include <windows.h>

#include <string>

namespace support {

/// From now on every program that this process starts, and every one that those start, ends with
/// this process, however it ends. Throws std::runtime_error if the system does not allow it.
void bindStartedPrograms();

/// Starts a program and returns its process, whose handle is the caller's. With
/// CREATE_BREAKAWAY_FROM_JOB it is like a program that somebody else has started. `SW_...` is the
/// requested state of its window. Throws NotSeen if it cannot be started.
HANDLE startProgram(std::wstring commandLine, DWORD flags = 0, WORD show = SW_SHOWDEFAULT);

/// Whether the window belongs to such a program, or to this process. Only these may be ended or
/// typed into.
bool isStartedHere(HWND window);

}  // namespace support
