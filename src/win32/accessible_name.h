#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace win32 {

/// The name by which screen readers know a box that has no visible label in front of it.
class AccessibleName {
 public:
  /// An empty name leaves it to the label.
  AccessibleName(HWND box, std::string_view name);

  /// A screen reader asks for the box for the first time.
  void announce();

 private:
  HWND box_;
  std::wstring name_;
};

}  // namespace win32
