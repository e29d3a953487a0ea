#include "desktop/program/tested_program.h"

#include <algorithm>
#include <string_view>

#include "support/wait.h"
#include "support/windows.h"

namespace program {

using namespace support;

namespace {

constexpr wchar_t kWindowClass[] = L"TallyrexWindow";
constexpr wchar_t kDialogClass[] = L"#32770";
constexpr wchar_t kTapeClass[] = L"TallyrexTape";

// The boxes of one line stand side by side.
HWND lineBox(HWND window, bool leftmost) {
  HWND found = nullptr;
  for (HWND child : shownChildren(window)) {
    if (classOf(child) != L"Edit") continue;
    if (!found || (placeOf(child).left < placeOf(found).left) == leftmost) found = child;
  }
  return found;
}

}  // namespace

TestedProgram::TestedProgram(const std::wstring& program, const std::wstring& help) {
  wchar_t temporary[MAX_PATH] = L"";
  GetTempPathW(MAX_PATH, temporary);
  folder_ = temporary + name_ + std::to_wstring(GetCurrentProcessId());
  CreateDirectoryW(folder_.c_str(), nullptr);
  program_ = folder_ + L"\\" + name_ + L".exe";
  help_ = folder_ + L"\\" + name_ + L".hlp";
  if (!CopyFileW(program.c_str(), program_.c_str(), FALSE))
    throw NotSeen("the file of the program");
  // It is there only where it could be built.
  CopyFileW(help.c_str(), help_.c_str(), FALSE);
}

TestedProgram::~TestedProgram() {
  kill();
  // Its file cannot be deleted before the program is gone altogether.
  eventually([this] {
    DeleteFileW(program_.c_str());
    DeleteFileW(help_.c_str());
    return RemoveDirectoryW(folder_.c_str()) != FALSE;
  });
}

void TestedProgram::launch() {
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION started = {};
  std::wstring commandLine = L"\"" + program_ + L"\"";
  if (!CreateProcessW(program_.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                      nullptr, &startup, &started))
    throw NotSeen("the program");
  CloseHandle(started.hThread);
  process_ = started.hProcess;
  processId_ = started.dwProcessId;
  AllowSetForegroundWindow(processId_);
}

void TestedProgram::start() {
  launch();
  await("the main window with the focus in the entry box", [this] {
    const HWND window = mainWindow();
    return window && GetForegroundWindow() == window && focus() && focus() == entry() &&
           textOf(window).ends_with(L", Tallyrex");
  });
}

bool TestedProgram::running() const {
  return process_ && WaitForSingleObject(process_, 0) == WAIT_TIMEOUT;
}

void TestedProgram::awaitEnd() const {
  await("the end of the program", [this] { return !running(); });
}

DWORD TestedProgram::exitCode() const {
  DWORD code = STILL_ACTIVE;
  GetExitCodeProcess(process_, &code);
  return code;
}

void TestedProgram::kill() {
  if (!process_) return;
  if (running()) TerminateProcess(process_, 1);
  WaitForSingleObject(process_, INFINITE);
  CloseHandle(process_);
  process_ = nullptr;
  processId_ = 0;
}

bool TestedProgram::owns(HWND window) const {
  return window && processId_ != 0 && processOf(window) == processId_;
}

HWND TestedProgram::mainWindow() const {
  for (HWND window : shownWindows())
    if (owns(window) && classOf(window) == kWindowClass &&
        FindWindowExW(window, nullptr, kTapeClass, nullptr))
      return window;
  return nullptr;
}

HWND TestedProgram::windowTitled(const std::wstring& ending) const {
  for (HWND window : shownWindows())
    if (owns(window) && classOf(window) == kWindowClass && textOf(window).ends_with(ending))
      return window;
  return nullptr;
}

HWND TestedProgram::dialog() const {
  for (HWND window : shownWindows())
    if (owns(window) && classOf(window) == kDialogClass) return window;
  return nullptr;
}

HWND TestedProgram::focus() const {
  const HWND front = GetForegroundWindow();
  if (!owns(front)) return nullptr;
  GUITHREADINFO thread = {};
  thread.cbSize = sizeof thread;
  GetGUIThreadInfo(GetWindowThreadProcessId(front, nullptr), &thread);
  return thread.hwndFocus;
}

HWND TestedProgram::entry() const {
  return lineBox(mainWindow(), true);
}

HWND TestedProgram::decimals() const {
  return lineBox(mainWindow(), false);
}

HWND TestedProgram::tape() const {
  return childOfClass(mainWindow(), kTapeClass);
}

HWND TestedProgram::key(HWND window, const std::wstring& text) {
  for (HWND child : shownChildren(window))
    if (classOf(child) == L"Button" && plainTextOf(child) == text) return child;
  return nullptr;
}

std::wstring plainTextOf(HWND control) {
  std::wstring text = textOf(control);
  std::erase(text, L'&');
  return text;
}

}  // namespace program
