#include "desktop/program/other_program.h"
#include "desktop/program/program_test.h"

namespace program {
namespace {

class StartTest : public ProgramTest {
 protected:
  void minimize() {
    pressWith(VK_MENU, VK_SPACE);
    type("n");
    await("the window as an icon", [] { return IsIconic(program().mainWindow()) != FALSE; });
  }
};

std::wstring withoutSeparators(std::wstring number) {
  std::erase(number, L',');
  return number;
}

bool startsWith(const std::wstring& all, const std::wstring& start) {
  return all.starts_with(start);
}

bool endsWith(const std::wstring& all, const std::wstring& end) {
  return all.ends_with(end);
}

TEST_F(StartTest, AddsAColumnOfFigures) {
  start();
  chooseFromMenu('W', "OA");
  type("12+3+5-=");
  expectText(program().tape(), L"Top\r\n12.00 + \r\n3.00 + \r\n5.00 - \r\n10.00 * \r\n");
  expectText(program().entry(), L"10");
  close();
}

// The user types while the window appears. The program that was in front before gets the first
// keys; once this one is in front, it gets every key in order. The system itself may lose a key
// that is pressed just when the foreground changes.
TEST_F(StartTest, KeysTypedDuringStartupArriveInOrder) {
  constexpr std::size_t kKeysInFront = 6;
  OtherProgram other;
  other.comeToFront();
  std::wstring typed;
  std::size_t inFront = 0;
  program().launch();
  await("the program in front", [&] {
    if (program().owns(GetForegroundWindow())) ++inFront;
    const char digit = static_cast<char>('1' + typed.size() % 9);
    type({&digit, 1});
    typed += static_cast<wchar_t>(digit);
    other.work();
    return inFront == kKeysInFront;
  });
  const auto entry = [] { return withoutSeparators(textOf(program().entry())); };
  eventually([&] { return entry().size() >= kKeysInFront && typed.ends_with(entry()); });
  EXPECT_GE(entry().size(), kKeysInFront);
  EXPECT_PRED2(endsWith, typed, entry());
  other.work();
  EXPECT_PRED2(startsWith, typed, other.keys());
}

TEST_F(StartTest, ClosingWhileMinimizedKeepsTheStoredPlace) {
  settings().set(L"frmCalcAtUnloadLeft", L"1500");
  settings().set(L"frmCalctxtDec", L"3");
  start();
  const RECT before = placeOf(program().mainWindow());
  pressWith(VK_CONTROL, 'O');
  await("the tape off", [] { return isPressed(L"Tape off"); });
  minimize();
  close();
  EXPECT_EQ(settings().get(L"frmCalcAtUnloadLeft"), L"1500");
  EXPECT_FALSE(settings().read(L"Settings", L"frmCalcchkTapeOff"));
  start();
  EXPECT_FALSE(IsIconic(program().mainWindow()));
  const RECT after = placeOf(program().mainWindow());
  EXPECT_TRUE(EqualRect(&before, &after));
  expectText(program().decimals(), L"3");
  EXPECT_FALSE(isPressed(L"Tape off"));
}

// As a shortcut may request.
TEST_F(StartTest, StartsMinimizedOnRequest) {
  for (const int show : {SW_SHOWMINNOACTIVE, SW_SHOWMINIMIZED}) {
    program().launch(static_cast<WORD>(show));
    await("the window as an icon",
          [] { return program().mainWindow() && IsIconic(program().mainWindow()); });
    program().kill();
  }
}

TEST_F(StartTest, StartsMaximizedOnRequest) {
  program().launch(SW_SHOWMAXIMIZED);
  await("the window over the whole screen",
        [] { return program().mainWindow() && IsZoomed(program().mainWindow()); });
  EXPECT_TRUE(eventually([] { return program().focus() == program().entry(); }));
  type("5");
  expectText(program().entry(), L"5");
}

}  // namespace
}  // namespace program
