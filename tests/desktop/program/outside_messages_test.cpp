#include <array>
#include <climits>
#include <vector>

#include "desktop/program/program_test.h"
#include "support/clipboard.h"
#include "support/wine.h"

namespace program {
namespace {

// EM_GETSEL and EM_SETTABSTOPS take addresses instead of numbers, which would crash the sender. For
// EM_GETLINE from another program, Wine passes a window that is not its own edit box a buffer of
// two bytes, whatever its stated size.
bool canBeSent(UINT edit) {
  return edit != EM_SETTABSTOPS && !(edit == EM_GETLINE && isWine());
}

// The messages that our controls and those of the system handle, except any that would wait for the
// user.
std::vector<UINT> messages() {
  std::vector<UINT> all = {WM_DESTROY,
                           WM_NCDESTROY,
                           WM_SIZE,
                           WM_GETTEXTLENGTH,
                           WM_PAINT,
                           WM_ERASEBKGND,
                           WM_GETFONT,
                           WM_SETFONT,
                           WM_NCPAINT,
                           WM_KEYDOWN,
                           WM_KEYUP,
                           WM_CHAR,
                           WM_IME_CHAR,
                           WM_IME_STARTCOMPOSITION,
                           WM_IME_COMPOSITION,
                           WM_IME_ENDCOMPOSITION,
                           WM_TIMER,
                           WM_HSCROLL,
                           WM_VSCROLL,
                           WM_MOUSEMOVE,
                           WM_MOUSEWHEEL,
                           WM_CAPTURECHANGED,
                           WM_CUT,
                           WM_COPY,
                           WM_PASTE,
                           WM_CLEAR,
                           WM_UNDO,
                           BM_GETCHECK,
                           BM_SETCHECK,
                           BM_GETSTATE,
                           BM_SETSTATE,
                           BM_GETIMAGE};
  for (UINT edit = EM_GETSEL + 1; edit <= EM_GETIMESTATUS; ++edit)
    if (canBeSent(edit)) all.push_back(edit);
  return all;
}

class OutsideMessages : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    setClipboardText(L"7");
    start();
  }

  // False if the program does not answer in time. A message that the system refuses to send needs
  // no answer.
  static bool send(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                   UINT patience = 20'000) {
    DWORD_PTR answer = 0;
    SetLastError(ERROR_SUCCESS);
    return SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, patience, &answer) !=
               0 ||
           GetLastError() != ERROR_TIMEOUT;
  }

  /// Wine copies the text onto the stack of the program before that sees it.
  static bool endsNotepad(const std::wstring& text) {
    CloseHandle(startProgram(L"notepad.exe"));
    const HWND notepad = awaitWindow("Notepad", [] { return openedWindow(L"Notepad"); });
    constexpr UINT kPatience = 2000;
    send(notepad, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()), kPatience);
    const bool ended = eventually([notepad] { return !IsWindow(notepad); }, kPatience);
    endOpened();
    awaitInFront(program().mainWindow());
    return ended;
  }

  static void expectWorking() {
    ASSERT_TRUE(program().running());
    send(program().tape(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""));
    send(program().entry(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""));
    clickUntil(middleOf(program().entry()), [] { return program().focus() == program().entry(); });
    type("12+");
    // The decimals box contains what the messages have put there.
    EXPECT_TRUE(eventually([] { return textOf(program().tape()).starts_with(L"\r\n12"); }))
        << "the entry takes no figures any more";
  }
};

TEST_F(OutsideMessages, OddMessagesNeitherCrashNorHangTheProgram) {
  // Addresses point to a text; numbers are enormous.
  static std::array<wchar_t, 70'000> text = {L'7'};
  for (const HWND control : allChildren(program().mainWindow())) {
    for (const UINT message : messages()) {
      for (const WPARAM number : {static_cast<WPARAM>(0), static_cast<WPARAM>(1),
                                  static_cast<WPARAM>(-1), static_cast<WPARAM>(INT_MAX)}) {
        ASSERT_TRUE(send(control, message, number, reinterpret_cast<LPARAM>(text.data())))
            << "message " << message << " with " << number << " to "
            << std::string(program().running() ? "a running" : "an ended") << " program";
      }
    }
  }
  expectWorking();
}

// Not every system can pass such a long text. Then the sender gives up, and the program continues.
TEST_F(OutsideMessages, EnormousTextsNeitherCrashNorHangTheProgram) {
  constexpr UINT kPatience = 1000;
  const std::wstring enormous(1'300'000, L'7');
  if (isWine() && endsNotepad(enormous))
    GTEST_SKIP() << "this version of Wine ends every program that gets such a text";
  for (const HWND box : {program().entry(), program().decimals(), program().tape()})
    for (const UINT message : {static_cast<UINT>(WM_SETTEXT), static_cast<UINT>(EM_REPLACESEL)})
      send(box, message, 0, reinterpret_cast<LPARAM>(enormous.c_str()), kPatience);
  expectWorking();
}

}  // namespace
}  // namespace program
