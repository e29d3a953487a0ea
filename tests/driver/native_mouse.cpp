#include "driver/native_mouse.h"

#include <iterator>

namespace driver {

namespace {

// The window class of menus, and the message that asks one for its handle.
constexpr wchar_t kMenuClass[] = L"#32768";
constexpr UINT kGetMenuHandle = 0x01E1;

// The mouse reaches from 0 to this over the whole screen.
constexpr LONGLONG kMouseRange = 65536;

LONG toMouse(LONG place, int start, int length) {
  return static_cast<LONG>(((place - start) * kMouseRange + kMouseRange / 2) / length);
}

INPUT buttonInput(MouseButton button, bool up) {
  const bool left = (button == MouseButton::Left) != (GetSystemMetrics(SM_SWAPBUTTON) != 0);
  INPUT input = {};
  input.type = INPUT_MOUSE;
  if (left) {
    input.mi.dwFlags = up ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_LEFTDOWN;
  } else {
    input.mi.dwFlags = up ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_RIGHTDOWN;
  }
  return input;
}

POINT middleOf(const RECT& rect) {
  return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

}  // namespace

std::vector<INPUT> mouseInputs(POINT place, MouseButton button, bool up, ULONG_PTR extra) {
  INPUT move = {};
  move.type = INPUT_MOUSE;
  move.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_VIRTUALDESK;
  move.mi.dx =
      toMouse(place.x, GetSystemMetrics(SM_XVIRTUALSCREEN), GetSystemMetrics(SM_CXVIRTUALSCREEN));
  move.mi.dy =
      toMouse(place.y, GetSystemMetrics(SM_YVIRTUALSCREEN), GetSystemMetrics(SM_CYVIRTUALSCREEN));
  INPUT press = buttonInput(button, up);
  move.mi.dwExtraInfo = press.mi.dwExtraInfo = extra;
  return {move, press};
}

bool placeToClick(HWND control, POINT& place) {
  static int side = 1;
  RECT rect = {};
  if (!GetWindowRect(control, &rect)) return false;
  side = -side;
  place = middleOf(rect);
  place.x += side * GetSystemMetrics(SM_CXDOUBLECLK);
  return WindowFromPoint(place) == control;
}

HWND findShortcutMenu() {
  HWND menu = nullptr;
  while ((menu = FindWindowExW(nullptr, menu, kMenuClass, nullptr)) != nullptr) {
    DWORD process = 0;
    GetWindowThreadProcessId(menu, &process);
    if (process == GetCurrentProcessId() && IsWindowVisible(menu)) return menu;
  }
  return nullptr;
}

bool placeOfMenuItem(HWND menuWindow, std::wstring_view caption, POINT& place) {
  const auto menu = reinterpret_cast<HMENU>(SendMessageW(menuWindow, kGetMenuHandle, 0, 0));
  for (UINT i = 0; i < static_cast<UINT>(GetMenuItemCount(menu)); ++i) {
    wchar_t text[64] = L"";
    GetMenuStringW(menu, i, text, static_cast<int>(std::size(text)), MF_BYPOSITION);
    if (text != caption) continue;
    if ((GetMenuState(menu, i, MF_BYPOSITION) & (MF_GRAYED | MF_DISABLED)) != 0) return false;
    RECT rect = {};
    if (!GetMenuItemRect(nullptr, menu, i, &rect)) return false;
    place = middleOf(rect);
    return true;
  }
  return false;
}

}  // namespace driver
