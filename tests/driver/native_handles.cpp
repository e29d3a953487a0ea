#include "driver/native_handles.h"

#include <algorithm>

#include "support/windows.h"
#include "win32/native_control.h"
#include "win32/window.h"

namespace driver {

namespace {

// The menu on the screen has the items in the same order.
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

bool isGrey(const MenuPlace& place) {
  const UINT state = GetMenuState(place.menu, static_cast<UINT>(place.position), MF_BYPOSITION);
  return (state & (MF_GRAYED | MF_DISABLED)) != 0;
}

}  // namespace

HWND handleOf(const controls::Window& window) {
  return dynamic_cast<const win32::Window&>(window).handle();
}

HWND handleOf(controls::Control& control) {
  return win32::NativeControl::of(control).handle();
}

bool isOurs(HWND window) {
  return support::processOf(window) == GetCurrentProcessId();
}

bool isInFront() {
  HWND front = GetForegroundWindow();
  return front && isOurs(front);
}

MenuPlace placeOf(const controls::Window& window, const controls::MenuItem& item) {
  const int position = positionOf(window, item);
  if (!item.parent()) return {GetMenu(handleOf(window)), position};
  const MenuPlace opener = placeOf(window, *item.parent());
  return {GetSubMenu(opener.menu, opener.position), position};
}

std::vector<MenuPlace> wayTo(const controls::Window& window, const controls::MenuItem& item) {
  std::vector<MenuPlace> way;
  for (const controls::MenuItem* step = &item; step; step = step->parent()) {
    way.insert(way.begin(), placeOf(window, *step));
    if (isGrey(way.front())) return {};
  }
  return way;
}

}  // namespace driver
