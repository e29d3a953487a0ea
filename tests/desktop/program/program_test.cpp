#include "desktop/program/program_test.h"

#include <algorithm>

namespace program {
namespace {

constexpr int kTextOfMessage = 0xFFFF;

// Of another program that the tested one has started.
void endProcess(DWORD id) {
  const HANDLE process = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, id);
  if (!process) return;
  TerminateProcess(process, 1);
  WaitForSingleObject(process, INFINITE);
  CloseHandle(process);
}

}  // namespace

TestedProgram* ProgramTest::program_ = nullptr;

void ProgramTest::SetUp() {
  settings_.clear();
  shownBefore_ = shownWindows();
}

void ProgramTest::TearDown() {
  program().kill();
  for (const auto* other : {L"Notepad", L"MS_WINHELP"})
    while (const HWND window = openedWindow(other)) endProcess(processOf(window));
  settings_.clear();
}

void ProgramTest::close() {
  PostMessageW(program().mainWindow(), WM_SYSCOMMAND, SC_CLOSE, 0);
  program().awaitEnd();
  program().kill();
}

void ProgramTest::expectText(HWND window, const std::wstring& text) {
  eventually([&] { return textOf(window) == text; });
  EXPECT_EQ(textOf(window), text);
}

HWND ProgramTest::expectMessage(const std::wstring& text) {
  const HWND box = awaitWindow("a message", [] {
    const HWND shown = program().dialog();
    return GetForegroundWindow() == shown ? shown : nullptr;
  });
  EXPECT_EQ(textOf(GetDlgItem(box, kTextOfMessage)), text);
  return box;
}

void ProgramTest::answer(WORD key) {
  const HWND box = program().dialog();
  press(key);
  await("the end of a message", [box] { return !IsWindow(box); });
}

void ProgramTest::chooseFromMenu(WORD menu, std::string_view letters) {
  pressWith(VK_MENU, menu);
  type(letters);
}

HWND ProgramTest::openedWindow(std::wstring_view windowClass) const {
  for (HWND window : shownWindows()) {
    const bool old = std::ranges::find(shownBefore_, window) != shownBefore_.end();
    if (!old && classOf(window) == windowClass) return window;
  }
  return nullptr;
}

}  // namespace program
