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
  /// To be told of each message of a control: the mouse over it brings up its tip.
  void relay(HWND control, const Message& message) const;

 private:
  void create();

  HWND handle_ = nullptr;
};

}  // namespace win32
