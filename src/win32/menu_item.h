#pragma once

#include <windows.h>

#include <cstddef>
#include <string>

#include "controls/menu.h"

namespace win32 {

class Window;

/// An item of a window's menu bar, or of a menu that drops down from it. The menus are the
/// window's.
class MenuItem : public controls::MenuItem {
 public:
  MenuItem(Window& window, HMENU bar, const controls::MenuItemLayout& layout, MenuItem* parent);

  /// The place among the window's items that a command stands for.
  static std::size_t indexOf(WORD command) { return command - std::size_t{kFirstCommand}; }

 protected:
  void showCaption() override;
  void showChecked() override { showState(); }
  void showEnabled() override { showState(); }

 private:
  static constexpr WORD kFirstCommand = 100;

  HMENU popup();
  std::wstring text() const;
  void showState();
  void showOnBar();

  Window& frame_;
  // The menu that it is in, its place there, and the menu that it opens.
  HMENU menu_;
  UINT place_;
  HMENU popup_ = nullptr;
};

}  // namespace win32
