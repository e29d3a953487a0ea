#include "win32/dialog_place.h"

#include <algorithm>
#include <utility>

namespace win32 {
namespace {

// Of the dialog that opens next; nothing once it stands.
HWND ownerOfNext = nullptr;

bool isDialog(HWND window) {
  wchar_t name[8] = L"";
  GetClassNameW(window, name, 8);
  return lstrcmpW(name, L"#32770") == 0;
}

LONG within(LONG place, LONG size, LONG from, LONG to) {
  return std::max(from, std::min(place, to - size));
}

void placeOver(HWND owner, HWND dialog) {
  RECT below;
  RECT box;
  MONITORINFO monitor = {};
  monitor.cbSize = sizeof monitor;
  GetWindowRect(owner, &below);
  GetWindowRect(dialog, &box);
  GetMonitorInfoW(MonitorFromWindow(owner, MONITOR_DEFAULTTONEAREST), &monitor);
  const RECT& room = monitor.rcWork;
  const LONG width = box.right - box.left;
  const LONG height = box.bottom - box.top;
  const LONG left = within((below.left + below.right - width) / 2, width, room.left, room.right);
  const LONG top = within((below.top + below.bottom - height) / 2, height, room.top, room.bottom);
  SetWindowPos(dialog, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

DialogPlace::DialogPlace(HWND owner)
    : ownerBefore_(std::exchange(ownerOfNext, owner)),
      hook_(SetWindowsHookExW(WH_CBT, notice, nullptr, GetCurrentThreadId())) {}

DialogPlace::~DialogPlace() {
  UnhookWindowsHookEx(hook_);
  ownerOfNext = ownerBefore_;
}

LRESULT CALLBACK DialogPlace::notice(int code, WPARAM wParam, LPARAM lParam) {
  const auto window = reinterpret_cast<HWND>(wParam);
  if (code == HCBT_ACTIVATE && ownerOfNext && isDialog(window))
    placeOver(std::exchange(ownerOfNext, nullptr), window);
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace win32
