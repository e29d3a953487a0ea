#include <windows.h>

#include "app/application.h"
#include "win32/desktop.h"
#include "win32/message_loop.h"

// Libraries and programs are never taken from the current folder.
static void trustSystemFoldersOnly() {
  SetDllDirectoryW(L"");
  SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
  SetEnvironmentVariableW(L"NoDefaultCurrentDirectoryInExePath", L"1");
}

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  trustSystemFoldersOnly();
  win32::Desktop desktop;
  app::Application application(desktop);
  application.onEnded = win32::endMessageLoop;
  application.start();
  win32::runMessageLoop(desktop);
  return 0;
}
