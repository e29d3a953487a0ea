#include <algorithm>

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

TEST_F(StartTest, AddsAColumnOfFigures) {
  start();
  chooseFromMenu('W', "OA");
  type("12+3+5-=");
  expectText(program().tape(), L"Top\r\n12.00 + \r\n3.00 + \r\n5.00 - \r\n10.00 * \r\n");
  expectText(program().entry(), L"10");
  close();
}

// Somebody types on while the window comes up: what was typed before it is in front is in the
// program that was, the rest is in the entry box. No key is lost, and none comes out of order.
TEST_F(StartTest, KeysTypedWhileTheWindowComesUpArriveInOrder) {
  constexpr int kKeysAfterwards = 6;
  OtherProgram other;
  other.comeToFront();
  std::string typed;
  int afterwards = 0;
  program().launch();
  await("the program in front", [&] {
    const char digit = static_cast<char>('1' + typed.size() % 9);
    type({&digit, 1});
    typed += digit;
    other.work();
    if (program().owns(GetForegroundWindow())) ++afterwards;
    return afterwards == kKeysAfterwards;
  });
  const std::wstring expected(typed.begin(), typed.end());
  const auto arrived = [&] {
    other.work();
    return other.text() + withoutSeparators(textOf(program().entry()));
  };
  eventually([&] { return arrived() == expected; });
  EXPECT_EQ(arrived(), expected);
  EXPECT_GE(textOf(program().entry()).size(), std::size_t{kKeysAfterwards - 1});
}

TEST_F(StartTest, ClosedWhileMinimizedItComesUpAsItWasBefore) {
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

}  // namespace
}  // namespace program
