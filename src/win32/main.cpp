#include <windows.h>

#include "app/application.h"
#include "win32/desktop.h"
#include "win32/edge.h"
#include "win32/message_loop.h"

namespace {

// Never loads libraries or programs from the current folder.
void trustSystemFoldersOnly() {
  SetDllDirectoryW(L"");
  SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
  SetEnvironmentVariableW(L"NoDefaultCurrentDirectoryInExePath", L"1");
}

// The initial state of the window as requested by the starter, such as a shortcut.
controls::WindowState wantedState(int show) {
  switch (show) {
    case SW_SHOWMAXIMIZED:
      return controls::WindowState::Maximized;
    case SW_SHOWMINIMIZED:
    case SW_SHOWMINNOACTIVE:
    case SW_MINIMIZE:
      return controls::WindowState::Minimized;
    default:
      return controls::WindowState::Normal;
  }
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int show) {
  trustSystemFoldersOnly();
  win32::Desktop desktop;
  app::Application application(desktop);
  application.onEnded = win32::endMessageLoop;
  win32::atTheEdge(desktop.events(), [&]() -> LRESULT {
    application.start(wantedState(show));
    return 0;
  });
  win32::runMessageLoop(desktop);
  return 0;
}
