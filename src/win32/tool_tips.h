#pragma once

#include <windows.h>

#include <string>

namespace win32 {

/// The tool tips of a window's controls.
class ToolTips {
 public:
  ToolTips() = default;
  ~ToolTips();
  ToolTips(const ToolTips&) = delete;
  ToolTips& operator=(const ToolTips&) = delete;

  void add(HWND control, const std::string& text);

 private:
  void create();

  HWND handle_ = nullptr;
};

}  // namespace win32
