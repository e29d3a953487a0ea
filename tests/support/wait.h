#pragma once

#include <windows.h>

#include <stdexcept>
#include <string>

namespace support {

/// What a test waits for has not happened in time.
class NotSeen : public std::runtime_error {
 public:
  explicit NotSeen(const std::string& awaited) : std::runtime_error("not seen: " + awaited) {}
};

/// Half a minute, ample even on a busy machine.
inline constexpr ULONGLONG kPatience = 30'000;

/// Whether the condition becomes true within so many milliseconds.
template <class Condition>
bool eventually(Condition condition, ULONGLONG patience = kPatience) {
  constexpr DWORD kPoll = 10;
  const ULONGLONG until = GetTickCount64() + patience;
  while (!condition()) {
    if (GetTickCount64() > until) return false;
    Sleep(kPoll);
  }
  return true;
}

/// Waits until the condition is true; throws NotSeen if it takes too long.
template <class Condition>
void await(const std::string& what, Condition condition) {
  if (!eventually(condition)) throw NotSeen(what);
}

/// Waits until `find` returns a window, and returns it; throws NotSeen if it takes too long.
template <class Find>
HWND awaitWindow(const std::string& what, Find find) {
  HWND found = nullptr;
  await(what, [&] { return (found = find()) != nullptr; });
  return found;
}

}  // namespace support
