#include "driver/native_launches.h"

#include <algorithm>

#include "driver/native_handles.h"
#include "support/started_programs.h"
#include "support/wait.h"
#include "support/windows.h"
#include "win32/text.h"

namespace driver {

namespace {

// Less than the driver waits for the program, which waits here.
constexpr ULONGLONG kPatience = 20'000;

BOOL CALLBACK takeWindow(HWND window, LPARAM found) {
  if (IsWindowVisible(window) && !isOurs(window) && support::isStartedHere(window))
    reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
  return TRUE;
}

// The system's editors have one text box.
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

std::vector<HWND> windowsOfStarted() {
  std::vector<HWND> windows;
  EnumWindows(takeWindow, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

std::vector<HWND> windowsSince(const std::vector<HWND>& before) {
  std::vector<HWND> windows = windowsOfStarted();
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

HWND waitForWindowSince(const std::vector<HWND>& before) {
  std::vector<HWND> windows;
  const bool shown =
      support::eventually([&] { return !(windows = windowsSince(before)).empty(); }, kPatience);
  return shown ? windows.front() : nullptr;
}

std::string textShownIn(HWND window) {
  if (!waitForText(window)) return {};
  HWND box = textBoxOf(window);
  std::wstring text(static_cast<std::size_t>(support::ask(box, WM_GETTEXTLENGTH)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(
      SendMessageW(box, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
  return win32::narrow(text);
}

void closeUnsaved(HWND window) {
  if (HWND box = textBoxOf(window)) support::ask(box, EM_SETMODIFY, FALSE);
  PostMessageW(window, WM_CLOSE, 0, 0);
  support::eventually([window] { return !IsWindow(window); }, kPatience);
}

}  // namespace driver
