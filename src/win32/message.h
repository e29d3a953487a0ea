#pragma once

#include <windows.h>

#include <cstdint>

namespace win32 {

/// A window message.
struct Message {
  UINT id;
  WPARAM wParam;
  LPARAM lParam;
};

/// Whether the message destroys a window. Only the program itself may do that.
constexpr bool endsWindow(const Message& message) {
  return message.id == WM_DESTROY || message.id == WM_NCDESTROY;
}

/// Whether lParam is the address of readable memory with the size of a `Kind`, and not made up by
/// another program.
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

/// The position of the mouse in a mouse message, in pixels of the window.
inline POINT mousePlace(const Message& message) {
  return {static_cast<short>(LOWORD(message.lParam)), static_cast<short>(HIWORD(message.lParam))};
}

}  // namespace win32
