#include "desktop/program/program_test.h"

#include <utility>

#include "desktop/program/kept_tapes.h"
#include "shell/frm_calc_layout.h"
#include "support/kept_state.h"
#include "support/retries.h"
#include "support/wine.h"

namespace program {
namespace {

constexpr int kTextOfMessage = 0xFFFF;

}  // namespace

TestedProgram* ProgramTest::program_ = nullptr;

void ProgramTest::SetUp() {
  settings_.clear();
  clearKeptTapes(program_->name());
}

void ProgramTest::TearDown() {
  program().kill();
  endOpened();
  putBackRegistryValues();
  settings_.clear();
  clearKeptTapes(program_->name());
}

void ProgramTest::endOpened() {
  for (const auto* other : {L"Notepad", L"MS_WINHELP"})
    while (const HWND window = openedWindow(other)) endProcessOf(window);
}

void ProgramTest::close() {
  PostMessageW(program().mainWindow(), WM_SYSCOMMAND, SC_CLOSE, 0);
  program().awaitEnd();
  program().kill();
}

void ProgramTest::expectText(HWND window, const std::wstring& text) {
  std::wstring seen;
  eventually([&] { return (seen = textOf(window)) == text; });
  EXPECT_EQ(seen, text);
}

HWND ProgramTest::expectMessage(const std::wstring& text) {
  const HWND box = awaitDialog();
  EXPECT_EQ(textOf(GetDlgItem(box, kTextOfMessage)), text);
  return box;
}

HWND ProgramTest::awaitDialog() {
  const HWND box = awaitWindow("a message", [] { return program().dialog(); });
  awaitInFront(box);
  return box;
}

void ProgramTest::answer(WORD key) {
  const HWND box = program().dialog();
  press(key);
  await("the end of a message", [box] { return !IsWindow(box); });
}

void ProgramTest::awaitInFront(HWND window) {
  bool brought = false;
  await("a window in front", [window, &brought] {
    const HWND front = GetForegroundWindow();
    if (isWine() && !program().owns(front)) {
      if (!std::exchange(brought, true)) noteRetry("the program brought to the front");
      SetForegroundWindow(window);
    }
    return front == window;
  });
}

void ProgramTest::awaitRest() {
  constexpr ULONGLONG kRest = 250;
  constexpr ULONGLONG kLost = 5000;
  bool brought = false;
  const auto seen = [] { return std::pair(GetForegroundWindow(), program().focus()); };
  auto last = seen();
  ULONGLONG since = GetTickCount64();
  await("a desktop at rest", [&] {
    const auto now = seen();
    if (now != last) since = GetTickCount64();
    last = now;
    // On Wine, the end of another program may leave no window with the keyboard.
    if (isWine() && !now.second && GetTickCount64() - since >= kLost &&
        !std::exchange(brought, true)) {
      noteRetry("the program brought to the front");
      SetForegroundWindow(program().mainWindow());
    }
    return now.second && GetTickCount64() - since >= kRest;
  });
}

void ProgramTest::chooseFromMenu(WORD menu, std::string_view letters) {
  awaitRest();
  pressWith(VK_MENU, menu);
  type(letters);
}

// The submenu of the calculators opens at its first item.
void ProgramTest::chooseCalculator(int place) {
  chooseFromMenu('W', "F");
  for (int down = 0; down < place; ++down) press(VK_DOWN);
  press(VK_RETURN);
}

HWND ProgramTest::openCalculator(int place, const std::wstring& title) {
  chooseCalculator(place);
  awaitDialog();
  answer('Y');
  const HWND calculator =
      awaitWindow("the calculator", [&title] { return program().windowTitled(title); });
  awaitInFront(calculator);
  return calculator;
}

HWND ProgramTest::openAboutBox() {
  chooseFromMenu('H', "A");
  const HWND about =
      awaitWindow("the About box", [] { return program().windowTitled(L"About Tallyrex"); });
  awaitInFront(about);
  return about;
}

void ProgramTest::clickTape() {
  const auto hasFocus = [] { return program().focus() == program().tape(); };
  clickUntil(middleOf(program().tape()), hasFocus);
  await("the focus in the tape", hasFocus);
}

// The names are in ASCII.
std::vector<std::wstring> ProgramTest::namesInTabOrder() {
  std::vector<std::wstring> names;
  for (const controls::ControlLayout& control : shell::frmCalcLayout().controls) {
    if (control.kind == controls::ControlKind::Label) continue;
    const auto name = control.accessibleName.empty() ? control.face : control.accessibleName;
    names.emplace_back(name.begin(), name.end());
    std::erase(names.back(), L'&');
  }
  return names;
}

bool ProgramTest::isOnTop() {
  return (GetWindowLongW(program().mainWindow(), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}

bool ProgramTest::isPressed(const std::wstring& toggle) {
  const HWND key = TestedProgram::key(program().mainWindow(), toggle);
  return SendMessageW(key, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

HWND ProgramTest::openedWindow(std::wstring_view windowClass) {
  for (HWND window : shownWindows())
    if (classOf(window) == windowClass && isStartedHere(window)) return window;
  return nullptr;
}

void ProgramTest::endProcessOf(HWND window) {
  const HANDLE process = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, processOf(window));
  if (!process) return;
  TerminateProcess(process, 1);
  WaitForSingleObject(process, INFINITE);
  CloseHandle(process);
}

}  // namespace program
