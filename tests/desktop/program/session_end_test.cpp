#include <map>
#include <optional>

#include "desktop/program/program_test.h"

namespace program {
namespace {

// The end of the session or a request to close, with various windows open.
class SessionEndTest : public ProgramTest {
 protected:
  void startWithFields() {
    for (const auto& [key, text] : kFields) settings().write(L"Annuity", key, text);
    start();
    pressWith(VK_CONTROL, 'D');
    await("stationary decimal", [this] { return isPressed(L"Stationary decimal"); });
  }

  void openFirstNote() {
    startWithFields();
    chooseCalculator(0);
    awaitDialog();
  }

  void expectFieldsAsStored() {
    for (const auto& [key, text] : kFields) EXPECT_EQ(settings().read(L"Annuity", key), text);
    EXPECT_EQ(settings().read(L"Annuity", L"MsgLoan"), std::nullopt);
  }

  void expectMainWindowSaved() { EXPECT_EQ(settings().get(L"frmCalcchkShiftDec"), L"1"); }

  /// All top-level windows of the program, including hidden ones.
  static std::vector<HWND> itsWindows() {
    std::vector<HWND> windows = allWindows();
    std::erase_if(windows, [](HWND window) { return !program().owns(window); });
    return windows;
  }

  /// The financial calculator while it is loaded but not yet visible.
  static HWND hiddenWindow() {
    for (HWND window : itsWindows())
      if (classOf(window) == kWindowClass && !IsWindowVisible(window)) return window;
    return nullptr;
  }

  /// Reports the end of the session as the system does: first asks all windows, then notifies all.
  static void endSession(const std::vector<HWND>& windows) {
    DWORD_PTR agrees = 0;
    for (HWND window : windows) {
      SendMessageTimeoutW(window, WM_QUERYENDSESSION, 0, 0, SMTO_NORMAL, kPatience, &agrees);
      EXPECT_NE(agrees, 0U);
    }
    for (HWND window : windows)
      SendMessageTimeoutW(window, WM_ENDSESSION, TRUE, 0, SMTO_NORMAL, kPatience, &agrees);
  }

  static void askToClose(const std::vector<HWND>& windows) {
    for (HWND window : windows) PostMessageW(window, WM_CLOSE, 0, 0);
  }

  static void expectEnd() {
    program().awaitEnd();
    EXPECT_EQ(program().exitCode(), 0U);
  }

  HWND openAboutBoxOverAWindowOnTop() {
    startWithFields();
    chooseFromMenu('W', "A");
    await("always on top", isOnTop);
    return openAboutBox();
  }

  void expectEndWithFieldsAsStored() {
    expectEnd();
    expectFieldsAsStored();
    expectMainWindowSaved();
  }

  void expectEndWithOnTopKept() {
    expectEnd();
    EXPECT_EQ(settings().get(L"frmCalcmnuWinAlwaysOnTop"), L"True");
    expectMainWindowSaved();
  }

  const std::map<std::wstring, std::wstring> kFields = {
      {L"OptNper0", L"False"},  {L"OptNper1", L"True"}, {L"txtNper", L"30"}, {L"txtRate", L"7.5"},
      {L"txtPmt", L"1,234.56"}, {L"txtPV", L"100,000"}, {L"txtFV", L"77"},
  };
};

TEST_F(SessionEndTest, SentToTheMainWindowDuringTheFirstNoteKeepsTheFields) {
  openFirstNote();
  endSession({program().mainWindow()});
  expectEndWithFieldsAsStored();
}

TEST_F(SessionEndTest, SentToTheCalculatorDuringItsFirstNoteKeepsTheFields) {
  openFirstNote();
  endSession({hiddenWindow()});
  expectEndWithFieldsAsStored();
}

TEST_F(SessionEndTest, SentToAllWindowsKeepsTheFields) {
  openFirstNote();
  endSession(itsWindows());
  expectEndWithFieldsAsStored();
}

TEST_F(SessionEndTest, CloseRequestToAllWindowsDuringTheFirstNoteKeepsTheFields) {
  openFirstNote();
  askToClose(itsWindows());
  expectEndWithFieldsAsStored();
}

TEST_F(SessionEndTest, WindowClosedDuringItsFirstNoteStaysClosed) {
  openFirstNote();
  const HWND calculator = hiddenWindow();
  askToClose({calculator});
  answer('Y');
  await("the end of the window", [calculator] { return !IsWindow(calculator); });
  awaitInFront(program().mainWindow());
  expectFieldsAsStored();
  close();
  expectFieldsAsStored();
  expectMainWindowSaved();
}

TEST_F(SessionEndTest, MainWindowClosesBehindTheAboutBox) {
  openAboutBoxOverAWindowOnTop();
  askToClose({program().mainWindow()});
  expectEndWithOnTopKept();
}

TEST_F(SessionEndTest, SentToTheMainWindowBehindTheAboutBoxEndsTheProgram) {
  openAboutBoxOverAWindowOnTop();
  endSession({program().mainWindow()});
  expectEndWithOnTopKept();
}

TEST_F(SessionEndTest, SentToTheAboutBoxEndsTheProgram) {
  const HWND about = openAboutBoxOverAWindowOnTop();
  endSession({about});
  expectEndWithOnTopKept();
}

// The window is destroyed only after the system's own loop for the drag.
TEST_F(SessionEndTest, EndsTheProgramWhileItsFrameIsDragged) {
  start();
  const HWND window = program().mainWindow();
  holdFrame(window, titleOf(placeOf(window)));
  askToClose({window});
  await("a hidden window", [window] { return !IsWindowVisible(window); });
  releaseMouse();
  expectEnd();
}

TEST_F(SessionEndTest, EndsTheProgramDuringAMessage) {
  startWithFields();
  chooseFromMenu('F', "S");
  awaitDialog();
  endSession({program().mainWindow()});
  expectEnd();
  expectMainWindowSaved();
}

TEST_F(SessionEndTest, OpenFieldsAreSavedUnchanged) {
  startWithFields();
  openCalculator(0, L"Loan Annuities");
  type("25");
  await("the term", [] { return textOf(program().focus()) == L"25"; });
  endSession(itsWindows());
  expectEnd();
  EXPECT_EQ(settings().read(L"Annuity", L"txtNper"), L"25");
  EXPECT_EQ(settings().read(L"Annuity", L"txtPmt"), L"1,234.56");
}

TEST_F(SessionEndTest, CancelledEndChangesNothing) {
  startWithFields();
  for (HWND window : itsWindows()) {
    SendMessageW(window, WM_QUERYENDSESSION, 0, 0);
    SendMessageW(window, WM_ENDSESSION, FALSE, 0);
  }
  type("2");
  expectText(program().entry(), L"0.02");
}

}  // namespace
}  // namespace program
