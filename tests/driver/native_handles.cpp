#include "driver/native_handles.h"

#include <algorithm>

#include "win32/native_control.h"
#include "win32/window.h"

namespace driver {

namespace {

// The menu on the screen holds the items in their order.
int positionOf(const controls::Window& window, const controls::MenuItem& item) {
  if (const controls::MenuItem* parent = item.parent()) {
    const auto& items = parent->items();
    return static_cast<int>(std::ranges::find(items, &item) - items.begin());
  }
  int position = 0;
  for (const auto& other : window.menuItems()) {
    if (other.get() == &item) break;
    if (!other->parent()) ++position;
  }
  return position;
}

bool isGrey(HMENU menu, int position) {
  const UINT state = GetMenuState(menu, static_cast<UINT>(position), MF_BYPOSITION);
  return (state & (MF_GRAYED | MF_DISABLED)) != 0;
}

// Of the menu that an item opens; nothing when it cannot be opened.
HMENU menuOf(const controls::Window& window, const controls::MenuItem* opener) {
  if (!opener) return GetMenu(handleOf(window));
  HMENU menu = menuOf(window, opener->parent());
  const int position = positionOf(window, *opener);
  return menu && !isGrey(menu, position) ? GetSubMenu(menu, position) : nullptr;
}

}  // namespace

HWND handleOf(const controls::Window& window) {
  return dynamic_cast<const win32::Window&>(window).handle();
}

HWND handleOf(controls::Control& control) {
  return win32::NativeControl::of(control).handle();
}

UINT commandOf(const controls::Window& window, const controls::MenuItem& item) {
  HMENU menu = menuOf(window, item.parent());
  const int position = positionOf(window, item);
  return menu && !isGrey(menu, position) ? GetMenuItemID(menu, position) : 0;
}

}  // namespace driver
