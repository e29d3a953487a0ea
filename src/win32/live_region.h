#pragma once

#include <windows.h>

#include <string_view>

namespace win32 {

/// Asks a screen reader, where one listens, to say the name of a window.
void speak(HWND window);
/// Lets screen readers know that a window is one of which they say what is new. To be called when a
/// screen reader has asked for it, since it takes a library of the system.
void announceSpoken(HWND window);

/// A window that nobody sees, whose name is what a screen reader says next.
class LiveRegion {
 public:
  explicit LiveRegion(HWND parent);

  void say(std::string_view text);
  /// A screen reader asks for the window in which the region is.
  void announce();

 private:
  // It goes with its parent.
  HWND handle_;
  bool announced_ = false;
};

}  // namespace win32
