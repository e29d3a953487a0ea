#include <algorithm>
#include <array>

#include "desktop/program/program_test.h"

namespace program {
namespace {

// The whole program by keyboard.
class KeyboardTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    start();
  }

  static HWND window() { return program().mainWindow(); }

  static std::wstring nameOf(HWND control) {
    if (control == program().entry()) return L"Entry";
    if (control == program().decimals()) return L"Decimal places";
    if (control == program().tape()) return L"Tape";
    return plainTextOf(control);
  }

  static void expectFocus(const std::wstring& name) {
    eventually([&] { return nameOf(program().focus()) == name; });
    EXPECT_EQ(nameOf(program().focus()), name);
  }

  static void goTo(const std::wstring& name) {
    const std::size_t most = namesInTabOrder().size();
    for (std::size_t i = 0; i < most && nameOf(program().focus()) != name; ++i) {
      const HWND before = program().focus();
      press(VK_TAB);
      await("the focus at the next control",
            [before] { return program().focus() != before && program().focus() != nullptr; });
    }
    ASSERT_EQ(nameOf(program().focus()), name);
  }

  static void expectPressed(const wchar_t* toggle, bool pressed) {
    eventually([&] { return isPressed(toggle) == pressed; });
    EXPECT_EQ(isPressed(toggle), pressed);
  }

  static void expectQuestionAndDecline(const std::wstring& title) {
    EXPECT_EQ(textOf(awaitDialog()), title);
    type("n");
    await("the end of a question", [] { return program().dialog() == nullptr; });
  }
};

TEST_F(KeyboardTest, TabVisitsEveryControlRowByRow) {
  for (const std::wstring& name : namesInTabOrder()) {
    expectFocus(name);
    press(VK_TAB);
  }
  expectFocus(L"Entry");
}

TEST_F(KeyboardTest, ShiftTabGoesBack) {
  const std::vector<std::wstring> names = namesInTabOrder();
  std::for_each(names.rbegin(), names.rend(), [this](const std::wstring& name) {
    pressWith(VK_SHIFT, VK_TAB);
    expectFocus(name);
  });
}

TEST_F(KeyboardTest, SpaceAndEnterPressTheFocusedKey) {
  goTo(L"7");
  press(VK_SPACE);
  expectText(program().entry(), L"7");
  expectFocus(L"Entry");
  goTo(L"5");
  press(VK_RETURN);
  expectText(program().entry(), L"75");
  goTo(L"Tape off");
  press(VK_SPACE);
  expectPressed(L"Tape off", true);
}

TEST_F(KeyboardTest, AccessKeysPressTheirKeys) {
  type("5");
  expectText(program().entry(), L"5");
  pressWith(VK_MENU, 'M');
  pressWith(VK_MENU, 'N');
  expectText(program().entry(), L"");
  goTo(L"Memory recall");
  press(VK_SPACE);
  expectText(program().entry(), L"5");
  pressWith(VK_MENU, 'T');
  expectText(program().tape(), L"Top\r\n0.00 * \r\n");
  pressWith(VK_MENU, 'P');
  expectText(program().tape(), L"Top");
  type("12+");
  expectText(program().tape(), L"Top\r\n12.00   ");
  pressWith(VK_MENU, 'A');
  expectText(program().tape(), L"Top");
  expectText(program().entry(), L"");
}

TEST_F(KeyboardTest, FileMenuWorksByLetters) {
  chooseFromMenu('F', "S");
  expectQuestionAndDecline(L"Save Tape Display");
  chooseFromMenu('F', "P");
  expectQuestionAndDecline(L"Print Tape Display");
  chooseFromMenu('F', "X");
  program().awaitEnd();
}

TEST_F(KeyboardTest, EditMenuWorksByLetters) {
  type("125");
  expectText(program().entry(), L"125");
  pressWith(VK_SHIFT, VK_HOME);
  chooseFromMenu('E', "T");
  expectText(program().entry(), L"");
  chooseFromMenu('E', "P");
  expectText(program().entry(), L"125");
  pressWith(VK_SHIFT, VK_HOME);
  chooseFromMenu('E', "C");
  pressWith(VK_MENU, 'N');
  expectText(program().entry(), L"");
  chooseFromMenu('E', "P");
  expectText(program().entry(), L"125");
  chooseFromMenu('E', "S");
  expectPressed(L"Stationary decimal", true);
  chooseFromMenu('E', "F");
  expectPressed(L"Floating decimal", true);
  chooseFromMenu('E', "E");
  awaitDialog();
  answer(VK_RETURN);
  chooseFromMenu('E', "N");
  awaitDialog();
  answer(VK_RETURN);
  awaitWindow("Notepad", [this] { return openedWindow(L"Notepad"); });
}

TEST_F(KeyboardTest, WinMenuWorksByLetters) {
  const auto width = [] { return placeOf(window()).right - placeOf(window()).left; };
  const auto normal = width();
  chooseFromMenu('W', "OA");
  expectText(window(), L"Add Mode, Tallyrex");
  chooseFromMenu('W', "OC");
  expectText(window(), L"Calc Mode, Tallyrex");
  chooseFromMenu('W', "P");
  expectText(program().tape(), L"Top                    Top");
  chooseFromMenu('W', "T");
  expectPressed(L"Tape off", true);
  chooseFromMenu('W', "A");
  await("always on top", isOnTop);
  chooseFromMenu('W', "A");
  await("no longer on top", [] { return !isOnTop(); });
  chooseFromMenu('W', "M");
  await("the micro window", [&] { return width() < normal && width() > 0; });
  chooseFromMenu('W', "M");
  await("the normal window", [&] { return width() == normal; });
}

TEST_F(KeyboardTest, FinancialCalculatorsOpenByLettersAndArrows) {
  constexpr std::array kTitles = {L"Loan Annuities", L"Investment Annuities",
                                  L"Standard Annuity Calc"};
  for (int place = 0; place < 3; ++place) {
    const HWND calculator = openCalculator(place, kTitles.at(static_cast<std::size_t>(place)));
    pressWith(VK_MENU, VK_F4);
    await("its end", [calculator] { return !IsWindow(calculator); });
    awaitInFront(window());
  }
}

TEST_F(KeyboardTest, AboutBoxOpensByLettersAndClosesWithEscape) {
  openAboutBox();
  press(VK_ESCAPE);
  awaitInFront(window());
  expectFocus(L"Entry");
}

TEST_F(KeyboardTest, AboutBoxClosedBehindTheWindowLeavesTheKeysToTheEntry) {
  const HWND about = openAboutBox();
  // The desktop may activate a window that takes no input.
  SetForegroundWindow(window());
  awaitInFront(window());
  PostMessageW(about, WM_CLOSE, 0, 0);
  expectFocus(L"Entry");
}

}  // namespace
}  // namespace program
