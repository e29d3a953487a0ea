#include "win32/dialog_place.h"

#include <utility>

#include "win32/work_area.h"

namespace win32 {
namespace {

// Of the dialog that opens next; nothing once it stands.
HWND ownerOfNext = nullptr;

void placeOver(HWND owner, HWND dialog) {
  RECT below;
  RECT box;
  GetWindowRect(owner, &below);
  GetWindowRect(dialog, &box);
  OffsetRect(&box, (below.left + below.right - box.left - box.right) / 2,
             (below.top + below.bottom - box.top - box.bottom) / 2);
  const RECT area = workAreaOf(MonitorFromWindow(owner, MONITOR_DEFAULTTONEAREST));
  const POINT corner = cornerWithin(area, box);
  SetWindowPos(dialog, nullptr, corner.x, corner.y, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

bool isSystemDialog(HWND window) {
  wchar_t name[8] = L"";
  GetClassNameW(window, name, 8);
  return lstrcmpW(name, L"#32770") == 0;
}

DialogPlace::DialogPlace(HWND owner)
    : ownerBefore_(std::exchange(ownerOfNext, owner)),
      hook_(SetWindowsHookExW(WH_CBT, notice, nullptr, GetCurrentThreadId())) {}

DialogPlace::~DialogPlace() {
  UnhookWindowsHookEx(hook_);
  ownerOfNext = ownerBefore_;
}

LRESULT CALLBACK DialogPlace::notice(int code, WPARAM wParam, LPARAM lParam) {
  const auto window = reinterpret_cast<HWND>(wParam);
  if (code == HCBT_ACTIVATE && ownerOfNext && isSystemDialog(window))
    placeOver(std::exchange(ownerOfNext, nullptr), window);
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace win32
