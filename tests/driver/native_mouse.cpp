#include "driver/native_mouse.h"

#include <iterator>
#include <string_view>

#include "support/input.h"
#include "support/windows.h"

namespace driver {

namespace {

// The window class of menus, and the message that asks one for its handle.
constexpr std::wstring_view kMenuClass = L"#32768";
constexpr UINT kGetMenuHandle = 0x01E1;

// The menu shown by the window of an open menu; null for any other window.
HMENU menuIn(HWND window) {
  if (support::classOf(window) != kMenuClass) return nullptr;
  return reinterpret_cast<HMENU>(SendMessageW(window, kGetMenuHandle, 0, 0));
}

HWND findOpenMenu() {
  HWND menu = nullptr;
  while ((menu = FindWindowExW(nullptr, menu, kMenuClass.data(), nullptr)) != nullptr) {
    if (isOurs(menu) && IsWindowVisible(menu)) break;
  }
  return menu;
}

std::wstring_view captionOf(controls::BoxCommand command) {
  switch (command) {
    case controls::BoxCommand::Undo:
      return L"&Undo";
    case controls::BoxCommand::Cut:
      return L"Cu&t";
    case controls::BoxCommand::Delete:
      return L"&Delete";
    default:
      return L"&Paste";
  }
}

}  // namespace

INPUT mouseButton(MouseButton button, bool up, ULONG_PTR extra) {
  const bool left = (button == MouseButton::Left) != (GetSystemMetrics(SM_SWAPBUTTON) != 0);
  INPUT input = support::mouseInput(left ? (up ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_LEFTDOWN)
                                         : (up ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_RIGHTDOWN));
  input.mi.dwExtraInfo = extra;
  return input;
}

bool isButton(HWND control) {
  return support::classOf(control) == L"Button";
}

bool isShown(HWND control) {
  HWND window = GetAncestor(control, GA_ROOT);
  RECT rect = {};
  RECT client = {};
  if (!IsWindowVisible(control) || !GetWindowRect(control, &rect)) return false;
  const POINT middle = support::middleOf(rect);
  POINT inWindow = middle;
  return GetClientRect(window, &client) && ScreenToClient(window, &inWindow) &&
         PtInRect(&client, inWindow) && MonitorFromPoint(middle, MONITOR_DEFAULTTONULL);
}

bool takesInput(HWND control) {
  return IsWindowEnabled(control) && IsWindowEnabled(GetAncestor(control, GA_ROOT));
}

bool placeToClick(HWND control, POINT& place) {
  static int side = 1;
  RECT rect = {};
  if (!GetWindowRect(control, &rect)) return false;
  side = -side;
  place = support::middleOf(rect);
  place.x += side * GetSystemMetrics(SM_CXDOUBLECLK);
  return WindowFromPoint(place) == control;
}

bool placeInBar(HWND window, const MenuPlace& item, POINT& place) {
  RECT rect = {};
  if (!GetMenuItemRect(window, item.menu, static_cast<UINT>(item.position), &rect)) return false;
  place = support::middleOf(rect);
  return WindowFromPoint(place) == window &&
         SendMessageW(window, WM_NCHITTEST, 0, MAKELPARAM(place.x, place.y)) == HTMENU;
}

bool placeInMenu(const MenuPlace& item, POINT& place) {
  RECT rect = {};
  if (!GetMenuItemRect(nullptr, item.menu, static_cast<UINT>(item.position), &rect)) return false;
  place = support::middleOf(rect);
  return menuIn(WindowFromPoint(place)) == item.menu;
}

HWND mouseCapture(HWND window) {
  const GUITHREADINFO info = support::inputStateOf(window);
  return (info.flags & GUI_INMENUMODE) != 0 ? info.hwndMenuOwner : info.hwndCapture;
}

BoxMenuItem findInBoxMenu(controls::BoxCommand command) {
  const std::wstring_view caption = captionOf(command);
  BoxMenuItem found;
  HWND window = findOpenMenu();
  if (!window) return found;
  HMENU menu = menuIn(window);
  for (int i = 0; i < GetMenuItemCount(menu); ++i) {
    wchar_t text[16] = L"";
    GetMenuStringW(menu, static_cast<UINT>(i), text, static_cast<int>(std::size(text)),
                   MF_BYPOSITION);
    if (std::wstring_view(text) != caption) continue;
    found.grey = (GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION) & MF_GRAYED) != 0;
    found.seen = placeInMenu({menu, i}, found.place);
  }
  return found;
}

}  // namespace driver
