#include "driver/native_launches.h"

#include <algorithm>

#include "driver/native_handles.h"
#include "support/wait.h"
#include "support/windows.h"

namespace driver {

namespace {

constexpr ULONGLONG kPatience = 3000;

BOOL CALLBACK takeWindow(HWND window, LPARAM found) {
  if (IsWindowVisible(window) && !isOurs(window))
    reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
  return TRUE;
}

// The editors of the system have one text box.
BOOL CALLBACK takeTextBox(HWND child, LPARAM found) {
  const std::wstring kind = support::classOf(child);
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
  return support::eventually(
      [window] {
        HWND box = textBoxOf(window);
        return box && support::ask(box, WM_GETTEXTLENGTH) > 0;
      },
      kPatience);
}

void closeUnsaved(HWND window) {
  if (HWND box = textBoxOf(window)) support::ask(box, EM_SETMODIFY, FALSE);
  PostMessageW(window, WM_CLOSE, 0, 0);
  support::eventually([window] { return !IsWindow(window); }, kPatience);
}

}  // namespace driver
