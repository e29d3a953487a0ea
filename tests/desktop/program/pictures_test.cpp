#include "desktop/program/clipboard.h"
#include "desktop/program/other_program.h"
#include "desktop/program/picture.h"
#include "desktop/program/program_test.h"

namespace program {
namespace {

// Takes pictures of what a user can see, for somebody to look at. Runs only when a folder is given.
class PicturesTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    if (pictureFolder().empty()) GTEST_SKIP() << "no folder is given for pictures";
    start();
  }

  static HWND window() { return program().mainWindow(); }

  /// All that the program shows, or what another window shows.
  void save(const std::wstring& name, HWND other = nullptr) {
    awaitPainted();
    RECT place = other ? placeOf(other) : RECT{};
    for (HWND shown : shownWindows()) {
      const RECT part = placeOf(shown);
      if (!other && program().owns(shown)) UnionRect(&place, &place, &part);
    }
    // A maximized window reaches beyond the screen, of which there is no picture.
    const RECT all = screen();
    IntersectRect(&place, &place, &all);
    EXPECT_TRUE(Picture(place).save(pictureFolder() + L"\\" + name + L".bmp"));
  }

  void saveMenu(const std::wstring& name, WORD menu, std::string_view letters) {
    chooseFromMenu(menu, letters);
    await("an open menu", [&] { return countMenus() == letters.size() + 1; });
    save(name);
    while (countMenus() > 0) {
      const std::size_t before = countMenus();
      press(VK_ESCAPE);
      await("the end of a menu", [&] { return countMenus() < before; });
    }
    press(VK_ESCAPE);
  }

  /// The message that is coming; it is answered by a key.
  void saveMessage(const std::wstring& name, WORD key = VK_RETURN) {
    awaitDialog();
    save(name);
    answer(key);
  }

  static void clickKey(HWND frame, const std::wstring& name) {
    click(middleOf(TestedProgram::key(frame, name)));
  }

 private:
  static std::size_t countMenus() {
    std::size_t menus = 0;
    for (HWND shown : shownWindows())
      if (program().owns(shown) && classOf(shown) == L"#32768") ++menus;
    return menus;
  }

  static RECT screen() {
    return {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
  }

  // Until the screen has stood still for a while.
  static void awaitPainted() {
    constexpr ULONGLONG kRest = 400;
    const RECT all = screen();
    auto last = Picture(all).dots();
    ULONGLONG since = GetTickCount64();
    await("a screen at rest", [&] {
      auto now = Picture(all).dots();
      if (now != last) since = GetTickCount64();
      last = std::move(now);
      return GetTickCount64() - since >= kRest;
    });
  }
};

TEST_F(PicturesTest, OfTheMenus) {
  save(L"window-first-start");
  saveMenu(L"menu-file", 'F', "");
  saveMenu(L"menu-edit", 'E', "");
  saveMenu(L"menu-win", 'W', "");
  saveMenu(L"menu-win-modes", 'W', "O");
  saveMenu(L"menu-win-financial", 'W', "F");
  saveMenu(L"menu-help", 'H', "");
}

TEST_F(PicturesTest, OfTheLayouts) {
  chooseFromMenu('W', "OA");
  type("1234.5+2n+3+17.25-=5M");
  save(L"window-add-mode");
  pressWith(VK_CONTROL, 'S');
  save(L"window-micro");
  pressWith(VK_CONTROL, 'S');
  save(L"window-back-from-micro");
  pressWith(VK_MENU, 'A');
  chooseFromMenu('W', "P");
  expectText(program().tape(), L"Top                    Top");
  type("1234.5+2+3+17.25-=");
  save(L"window-padded");
  pressWith(VK_CONTROL, 'D');
  pressWith(VK_CONTROL, 'O');
  pressWith(VK_CONTROL, 'F');
  save(L"window-toggles");
  ShowWindow(window(), SW_MAXIMIZE);
  save(L"window-maximized");
}

TEST_F(PicturesTest, OfTheAboutBox) {
  chooseFromMenu('H', "A");
  const HWND about =
      awaitWindow("the About box", [] { return program().windowTitled(L"About Tallyrex"); });
  awaitInFront(about);
  save(L"about");
  pressWith(VK_MENU, 'S');
  saveMessage(L"message-system-information");
}

TEST_F(PicturesTest, OfTheMessagesOfTheTape) {
  chooseFromMenu('F', "S");
  saveMessage(L"question-save", 'N');
  chooseFromMenu('F', "P");
  saveMessage(L"question-print", 'N');
  chooseFromMenu('E', "E");
  saveMessage(L"note-copy-tape");
  type("12+");
  chooseFromMenu('W', "P");
  saveMessage(L"note-padding");
}

TEST_F(PicturesTest, OfTheMessagesOfTheEntry) {
  setClipboardText(L"word");
  pressWith(VK_CONTROL, 'V');
  saveMessage(L"message-paste");
  type("s");
  saveMessage(L"message-square-root");
  type("5/0=");
  saveMessage(L"message-divide-by-zero");
  save(L"window-error");
}

TEST_F(PicturesTest, OfTheMessageOfTheAddMode) {
  chooseFromMenu('W', "OA");
  type("12=");
  saveMessage(L"message-add-mode");
}

TEST_F(PicturesTest, OfTheColours) {
  for (HWND child : shownChildren(window()))
    if (textOf(child) == L"Decimals:") doubleClick(middleOf(child));
  saveMessage(L"message-colour");
  awaitInFront(awaitDialog());
  save(L"colour-picker");
}

TEST_F(PicturesTest, OfNotepad) {
  chooseFromMenu('W', "P");
  type("12+3+5+");
  chooseFromMenu('E', "N");
  const HWND notepad = awaitWindow("Notepad", [this] { return openedWindow(L"Notepad"); });
  await("its text", [notepad] { return !textOf(childOfClass(notepad, L"Edit")).empty(); });
  save(L"notepad", notepad);
}

TEST_F(PicturesTest, OfNotepadNotInFront) {
  OtherProgram other;
  pressWith(VK_CONTROL, 'N');
  saveMessage(L"note-notepad");
  await("a message", [&] {
    if (openedWindow(L"Notepad")) SetForegroundWindow(other.window());
    other.work();
    return program().dialog() != nullptr;
  });
  ShowWindow(openedWindow(L"Notepad"), SW_HIDE);
  SetForegroundWindow(program().dialog());
  saveMessage(L"message-notepad");
}

TEST_F(PicturesTest, OfTheHelp) {
  const auto saveHelp = [this](const wchar_t* name) {
    const HWND viewer =
        awaitWindow("the help viewer", [this] { return openedWindow(L"MS_WINHELP"); });
    SetForegroundWindow(viewer);
    save(name, viewer);
    // One that stays open shows another topic a moment later only.
    endProcessOf(viewer);
  };
  chooseFromMenu('H', "H");
  saveHelp(L"help-contents");
  SetForegroundWindow(window());
  const HWND calculator = openCalculator(0, L"Loan Annuities");
  clickKey(calculator, L"Help");
  saveHelp(L"help-topic-23");
}

TEST_F(PicturesTest, OfTheFinancialCalculator) {
  const HWND calculator = openCalculator(0, L"Loan Annuities");
  save(L"calculator-loan");
  clickKey(calculator, L"Calculate");
  saveMessage(L"message-blank");
  pressWith(VK_MENU, 'T');
  type("360=8.5==150000=");
  clickKey(calculator, L"Calculate");
  save(L"calculator-loan-answer");
  clickKey(calculator, L"Print to tape");
  save(L"calculator-on-the-tape");
  clickKey(calculator, L"Rotate configuration");
  saveMessage(L"note-investment", 'Y');
  save(L"calculator-investment");
  clickKey(calculator, L"Rotate configuration");
  saveMessage(L"note-standard", 'Y');
  save(L"calculator-standard");
}

TEST_F(PicturesTest, OfTheQuestionsOfTheFinancialCalculator) {
  chooseFromMenu('W', "A");
  await("always on top",
        [] { return (GetWindowLongW(window(), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0; });
  chooseFromMenu('W', "F=");
  saveMessage(L"message-always-on-top");
  saveMessage(L"note-loan", 'Y');
  const HWND calculator =
      awaitWindow("the calculator", [] { return program().windowTitled(L"Loan Annuities"); });
  awaitInFront(calculator);
  pressWith(VK_MENU, 'T');
  type("360=8.5==150000=");
  clickKey(calculator, L"Calculate");
  await("an answer", [&] { return TestedProgram::key(calculator, L"Print to tape") != nullptr; });
  PostMessageW(window(), WM_SYSCOMMAND, SC_CLOSE, 0);
  await("the end of the main window", [] { return window() == nullptr; });
  clickKey(calculator, L"Print to tape");
  saveMessage(L"question-reload", 'N');
}

}  // namespace
}  // namespace program
