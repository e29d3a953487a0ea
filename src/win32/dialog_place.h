#pragma once

#include <windows.h>

namespace win32 {

/// Whether a window is a dialog of the system's.
bool isSystemDialog(HWND window);

/// While it lives, a dialog of the system's opens over the middle of its window rather than of the
/// screen, and within the screen.
class DialogPlace {
 public:
  /// Without a window the system chooses the place.
  explicit DialogPlace(HWND owner);
  ~DialogPlace();
  DialogPlace(const DialogPlace&) = delete;
  DialogPlace& operator=(const DialogPlace&) = delete;

 private:
  static LRESULT CALLBACK notice(int code, WPARAM wParam, LPARAM lParam);

  HWND ownerBefore_;
  HHOOK hook_;
};

}  // namespace win32
