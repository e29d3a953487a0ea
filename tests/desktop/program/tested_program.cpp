#include "desktop/program/tested_program.h"

#include "support/started_programs.h"
#include "support/wait.h"
#include "support/windows.h"

namespace program {

using namespace support;

namespace {

constexpr wchar_t kDialogClass[] = L"#32770";
constexpr wchar_t kTapeClass[] = L"TallyrexTape";

// The single-line boxes are side by side.
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
  // Users' folders may have all kinds of letters in their names.
  folder_ = temporary + name_ + L" Z\u00E4hler \u8A08";
  CreateDirectoryW(folder_.c_str(), nullptr);
  program_ = folder_ + L"\\" + name_ + L".exe";
  help_ = folder_ + L"\\" + name_ + L".hlp";
  if (!CopyFileW(program.c_str(), program_.c_str(), FALSE))
    throw NotSeen("the file of the program");
  // It exists only where it could be built.
  CopyFileW(help.c_str(), help_.c_str(), FALSE);
}

TestedProgram::~TestedProgram() {
  kill();
  // Its file can be deleted only after the process has ended.
  eventually([this] {
    DeleteFileW(program_.c_str());
    DeleteFileW(help_.c_str());
    return RemoveDirectoryW(folder_.c_str()) != FALSE;
  });
}

void TestedProgram::launch(WORD show) {
  process_ = startProgram(L"\"" + program_ + L"\"", 0, show);
  processId_ = GetProcessId(process_);
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

void TestedProgram::runAt(ULONG_PTR address) const {
  const HANDLE thread = CreateRemoteThread(
      process_, nullptr, 0, reinterpret_cast<LPTHREAD_START_ROUTINE>(address), nullptr, 0, nullptr);
  if (!thread) throw NotSeen("a thread in the program");
  CloseHandle(thread);
}

// The library is at the same address in every process.
bool TestedProgram::takeMemory() const {
  const HMODULE library = GetModuleHandleW(L"msvcrt.dll");
  if (!library) return false;
  void* give = reinterpret_cast<void*>(GetProcAddress(library, "malloc"));
  // xor eax, eax; ret
  constexpr BYTE kNothing[] = {0x31, 0xC0, 0xC3};
  DWORD before = 0;
  return VirtualProtectEx(process_, give, sizeof kNothing, PAGE_EXECUTE_READWRITE, &before) &&
         WriteProcessMemory(process_, give, kNothing, sizeof kNothing, nullptr);
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
  return owns(front) ? inputStateOf(front).hwndFocus : nullptr;
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
