#pragma once

#include <windows.h>

#include <cstddef>
#include <string>

#include "controls/menu.h"

namespace win32 {

class Window;

/// An item of a window's menu bar, or of a drop-down menu. The window owns the menus.
class MenuItem : public controls::MenuItem {
 public:
  MenuItem(Window& window, HMENU bar, const controls::MenuItemLayout& layout, MenuItem* parent);

  /// The index of the window's item with a command number.
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
  // The menu that contains it, its index there, and the menu that it opens.
  HMENU menu_;
  UINT place_;
  HMENU popup_ = nullptr;
};

}  // namespace win32
