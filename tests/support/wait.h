#pragma once

#include <windows.h>

#include <stdexcept>
#include <string>

namespace support {

/// What a test waits for has not come.
class NotSeen : public std::runtime_error {
 public:
  explicit NotSeen(const std::string& awaited) : std::runtime_error("not seen: " + awaited) {}
};

/// Half a minute, which is ample on a busy machine.
inline constexpr ULONGLONG kPatience = 30'000;

/// Whether the condition comes to hold within so many milliseconds.
template <class Condition>
bool eventually(Condition condition, ULONGLONG patience = kPatience) {
  constexpr DWORD kPoll = 2;
  const ULONGLONG until = GetTickCount64() + patience;
  while (!condition()) {
    if (GetTickCount64() > until) return false;
    Sleep(kPoll);
  }
  return true;
}

/// Waits until the condition is true; throws NotSeen when it does not become so in time.
template <class Condition>
void await(const std::string& what, Condition condition) {
  if (!eventually(condition)) throw NotSeen(what);
}

/// Waits until `find` gives a window, and gives it; throws NotSeen when none comes.
template <class Find>
HWND awaitWindow(const std::string& what, Find find) {
  HWND found = nullptr;
  await(what, [&] { return (found = find()) != nullptr; });
  return found;
}

}  // namespace support
