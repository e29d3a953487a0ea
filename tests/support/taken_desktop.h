#pragma once

#include <windows.h>

#include <functional>

namespace support {

/// For how long a run waits for another one, in milliseconds: less than any test may take.
inline constexpr DWORD kPatienceWithOthers = 100'000;

/// Runs `body`, which uses the keyboard, the mouse and the clipboard, and returns its result. Only
/// one process of the tests has the desktop at a time; another waits. What is changed is put back
/// at the end, after Ctrl+C, or else when the next one begins; programs that were started end. Says
/// why and returns 1 if the desktop cannot be had.
int withDesktop(const std::function<int()>& body, DWORD patience = kPatienceWithOthers);

}  // namespace support
