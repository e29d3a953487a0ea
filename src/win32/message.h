#pragma once

#include <windows.h>

#include <cstdint>

namespace win32 {

/// A message as the system sends it to a window.
struct Message {
  UINT id;
  WPARAM wParam;
  LPARAM lParam;
};

/// What ends a window. The program ends its windows itself: from outside it is a mistake.
constexpr bool endsWindow(const Message& message) {
  return message.id == WM_DESTROY || message.id == WM_NCDESTROY;
}

/// Whether lParam is the address of a `Kind`, and not one that another program made up.
template <class Kind>
bool pointsTo(const Message& message) {
  MEMORY_BASIC_INFORMATION memory = {};
  const auto* address = reinterpret_cast<const void*>(message.lParam);
  if (VirtualQuery(address, &memory, sizeof memory) == 0 || memory.State != MEM_COMMIT)
    return false;
  constexpr DWORD kForbidden = PAGE_NOACCESS | PAGE_GUARD;
  const auto end = reinterpret_cast<std::uintptr_t>(memory.BaseAddress) + memory.RegionSize;
  return (memory.Protect & kForbidden) == 0 &&
         end - static_cast<std::uintptr_t>(message.lParam) >= sizeof(Kind);
}

/// The place of the mouse in a mouse message, in pixels of the window.
inline POINT mousePlace(const Message& message) {
  return {static_cast<short>(LOWORD(message.lParam)), static_cast<short>(HIWORD(message.lParam))};
}

}  // namespace win32
