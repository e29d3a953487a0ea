#pragma once

#include <windows.h>

#include <string>

#include "win32/message.h"

namespace win32 {

/// The tool tips of a window's controls.
class ToolTips {
 public:
  ToolTips() = default;
  ~ToolTips();
  ToolTips(const ToolTips&) = delete;
  ToolTips& operator=(const ToolTips&) = delete;

  void add(HWND control, const std::string& text);
  /// Must receive each message of a control, to show its tip under the mouse.
  void relay(HWND control, const Message& message) const;

 private:
  void create();

  HWND handle_ = nullptr;
};

}  // namespace win32
