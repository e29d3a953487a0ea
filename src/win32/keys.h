#pragma once

#include <windows.h>

namespace win32 {

inline bool isDown(int key) {
  return GetKeyState(key) < 0;
}

/// Keys that do nothing by themselves; the program ignores them.
constexpr bool isModifier(WPARAM key) {
  switch (key) {
    case VK_SHIFT:
    case VK_CONTROL:
    case VK_MENU:
    case VK_CAPITAL:
    case VK_NUMLOCK:
    case VK_SCROLL:
    case VK_LWIN:
    case VK_RWIN:
    case VK_APPS:
      return true;
    default:
      return false;
  }
}

}  // namespace win32
