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

// The system's editors have one text box.
HWND textBoxOf(HWND window) {
  for (HWND child : support::allChildren(window)) {
    const std::wstring kind = support::classOf(child);
    if (kind == L"Edit" || kind.starts_with(L"RichEdit")) return child;
  }
  return nullptr;
}

}  // namespace

std::vector<HWND> windowsOfStarted() {
  std::vector<HWND> windows = support::shownWindows();
  std::erase_if(windows,
                [](HWND window) { return isOurs(window) || !support::isStartedHere(window); });
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
  return waitForText(window) ? win32::narrow(support::textOf(textBoxOf(window))) : "";
}

void closeUnsaved(HWND window) {
  if (HWND box = textBoxOf(window)) support::ask(box, EM_SETMODIFY, FALSE);
  PostMessageW(window, WM_CLOSE, 0, 0);
  support::eventually([window] { return !IsWindow(window); }, kPatience);
}

}  // namespace driver
