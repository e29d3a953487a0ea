#include "driver/native_launches.h"

#include <algorithm>

#include "driver/native_handles.h"

namespace driver {

namespace {

constexpr DWORD kPatience = 3000;

template <class Condition>
bool comesTrue(Condition condition) {
  const ULONGLONG until = GetTickCount64() + kPatience;
  while (!condition()) {
    if (GetTickCount64() > until) return false;
    Sleep(2);
  }
  return true;
}

LRESULT ask(HWND window, UINT message, WPARAM wParam = 0) {
  DWORD_PTR answer = 0;
  SendMessageTimeoutW(window, message, wParam, 0, SMTO_ABORTIFHUNG, kPatience, &answer);
  return static_cast<LRESULT>(answer);
}

BOOL CALLBACK takeWindow(HWND window, LPARAM found) {
  if (IsWindowVisible(window) && !isOurs(window))
    reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
  return TRUE;
}

// The editors of the system have one text box.
BOOL CALLBACK takeTextBox(HWND child, LPARAM found) {
  const std::wstring kind = classOf(child);
  if (kind != L"Edit" && !kind.starts_with(L"RichEdit")) return TRUE;
  *reinterpret_cast<HWND*>(found) = child;
  return FALSE;
}

HWND textBoxOf(HWND window) {
  HWND box = nullptr;
  EnumChildWindows(window, takeTextBox, reinterpret_cast<LPARAM>(&box));
  return box;
}

}  // namespace

std::vector<HWND> windowsOfOthers() {
  std::vector<HWND> windows;
  EnumWindows(takeWindow, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

std::vector<HWND> windowsSince(const std::vector<HWND>& before) {
  std::vector<HWND> windows = windowsOfOthers();
  std::erase_if(windows, [&before](HWND window) {
    return std::ranges::find(before, window) != before.end();
  });
  return windows;
}

bool waitForText(HWND window) {
  return comesTrue([window] {
    HWND box = textBoxOf(window);
    return box && ask(box, WM_GETTEXTLENGTH) > 0;
  });
}

void closeUnsaved(HWND window) {
  if (HWND box = textBoxOf(window)) ask(box, EM_SETMODIFY, FALSE);
  PostMessageW(window, WM_CLOSE, 0, 0);
  comesTrue([window] { return !IsWindow(window); });
}

}  // namespace driver
