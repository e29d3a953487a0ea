#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace win32 {

/// The name for screen readers of a box without a visible label.
class AccessibleName {
 public:
  /// With an empty name, screen readers use the label.
  AccessibleName(HWND box, std::string_view name);

  /// To be called when a screen reader asks for the box.
  void announce();

 private:
  HWND box_;
  std::wstring name_;
};

}  // namespace win32
