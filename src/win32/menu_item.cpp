#include "win32/menu_item.h"

#include "win32/text.h"
#include "win32/window.h"

namespace win32 {

MenuItem::MenuItem(Window& window, HMENU bar, const controls::MenuItemLayout& layout,
                   MenuItem* parent)
    : controls::MenuItem(window, layout, parent),
      frame_(window),
      menu_(parent ? parent->popup() : bar),
      place_(static_cast<UINT>(GetMenuItemCount(menu_))) {
  const auto command = static_cast<UINT_PTR>(kFirstCommand + window.menuItems().size());
  if (isSeparator()) {
    AppendMenuW(menu_, MF_SEPARATOR, command, nullptr);
  } else {
    AppendMenuW(menu_, MF_STRING, command, text().c_str());
    showState();
  }
}

// An item becomes a menu when its first subitem is added.
HMENU MenuItem::popup() {
  if (!popup_) {
    popup_ = CreatePopupMenu();
    MENUITEMINFOW info = {};
    info.cbSize = sizeof info;
    info.fMask = MIIM_SUBMENU;
    info.hSubMenu = popup_;
    SetMenuItemInfoW(menu_, place_, TRUE, &info);
  }
  return popup_;
}

std::wstring MenuItem::text() const {
  return wide(shortcut().empty() ? caption() : caption() + "\t" + shortcut());
}

void MenuItem::showCaption() {
  std::wstring shown = text();
  MENUITEMINFOW info = {};
  info.cbSize = sizeof info;
  info.fMask = MIIM_STRING;
  info.dwTypeData = shown.data();
  SetMenuItemInfoW(menu_, place_, TRUE, &info);
  showOnBar();
}

void MenuItem::showState() {
  EnableMenuItem(menu_, place_,
                 MF_BYPOSITION | static_cast<UINT>(enabled() ? MF_ENABLED : MF_GRAYED));
  CheckMenuItem(menu_, place_,
                MF_BYPOSITION | static_cast<UINT>(checked() ? MF_CHECKED : MF_UNCHECKED));
  showOnBar();
}

// The menu bar is redrawn only on request.
void MenuItem::showOnBar() {
  if (!parent() && GetMenu(frame_.handle())) DrawMenuBar(frame_.handle());
}

}  // namespace win32
