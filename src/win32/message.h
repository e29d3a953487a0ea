#pragma once

#include <windows.h>

namespace win32 {

/// A message as the system sends it to a window.
struct Message {
  UINT id;
  WPARAM wParam;
  LPARAM lParam;
};

/// The place of the mouse in a mouse message, in pixels of the window.
inline POINT mousePlace(const Message& message) {
  return {static_cast<short>(LOWORD(message.lParam)), static_cast<short>(HIWORD(message.lParam))};
}

}  // namespace win32
