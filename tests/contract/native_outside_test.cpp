#include <windows.h>

#include <imm.h>

#include <array>
#include <climits>

#include "contract/contract_test.h"
#include "driver/native_handles.h"

// Messages of other programs: input methods, screen readers, macro tools, and errors.
namespace contract {

using driver::handleOf;

namespace {

class NativeOutside : public ContractTest {
 protected:
  LRESULT send(controls::Control& control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageW(handleOf(control), message, wParam, lParam);
  }
  HWND frame() { return handleOf(*window_); }
};

WNDPROC inner = nullptr;

LRESULT CALLBACK passThrough(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return CallWindowProcW(inner, window, message, wParam, lParam);
}

TEST_F(NativeOutside, SubclassedControlKeepsWorking) {
  button_.onClick = [this] { note("button"); };
  toggle_.onClick = [this] { note("toggle"); };
  for (controls::Control* control : std::initializer_list<controls::Control*>{&button_, &toggle_}) {
    inner = reinterpret_cast<WNDPROC>(SetWindowLongPtrW(handleOf(*control), GWLP_WNDPROC,
                                                        reinterpret_cast<LONG_PTR>(passThrough)));
    send(*control, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, 10));
    send(*control, WM_LBUTTONUP, 0, MAKELPARAM(10, 10));
  }
  EXPECT_EQ(takeLog(), (Log{"button", "toggle"}));
}

// A letter whose lowest eight bits are those of "G".
TEST_F(NativeOutside, AltWithANonAsciiLetterDoesNothing) {
  constexpr LPARAM kWithAlt = 1 << 29;
  button_.onClick = [this] { note("click"); };
  for (const WPARAM letter : {0x0147, 0x0148, 0x0647, 0x0167})
    PostMessageW(handleOf(first_), WM_SYSCHAR, letter, kWithAlt);
  kind_->settle();
  EXPECT_EQ(takeLog(), Log{});
  EXPECT_TRUE(first_.focused());
}

TEST_F(NativeOutside, NullTextIsEmpty) {
  for (controls::TextBox* box : {&first_, &tape_}) {
    box->setText("123");
    box->select(1, 1);
    send(*box, EM_REPLACESEL, FALSE, 0);
    EXPECT_EQ(box->text(), "13");
    send(*box, WM_SETTEXT, 0, 0);
    EXPECT_EQ(box->text(), "");
  }
}

TEST_F(NativeOutside, TapeAnswersInvalidQueries) {
  tape_.setText("one\r\ntwo");
  std::array<wchar_t, 16> line = {15};
  const auto buffer = reinterpret_cast<LPARAM>(line.data());
  for (const WPARAM odd : {static_cast<WPARAM>(-1), static_cast<WPARAM>(INT_MAX),
                           static_cast<WPARAM>(INT_MIN), static_cast<WPARAM>(2)})
    EXPECT_EQ(send(tape_, EM_GETLINE, odd, buffer), 0) << odd;
  EXPECT_EQ(send(tape_, EM_GETLINE, 0, 0), 0);
  EXPECT_EQ(send(tape_, EM_GETLINE, 1, buffer), 3);
  EXPECT_EQ(send(tape_, WM_GETTEXT, 10, 0), 0);
}

TEST_F(NativeOutside, TapeClampsASelectionToItsText) {
  tape_.setText("one\r\ntwo");
  send(tape_, EM_SETSEL, 0, -1);
  EXPECT_EQ(tape_.selLength(), 8);
  send(tape_, EM_SETSEL, 6, 2);
  EXPECT_EQ(shown(tape_), "one\r\ntwo 2+4");
  send(tape_, EM_SETSEL, 3, INT_MAX);
  EXPECT_EQ(shown(tape_), "one\r\ntwo 3+5");
  send(tape_, EM_SETSEL, static_cast<WPARAM>(-1), INT_MAX);
  EXPECT_EQ(tape_.selLength(), 0);
}

TEST_F(NativeOutside, ForeignTimerSelectsNothing) {
  tape_.setText("one\r\ntwo");
  SetCursorPos(0, 0);
  tape_.moveCaretToEnd();
  send(tape_, WM_TIMER, 77);
  EXPECT_EQ(shown(tape_), "one\r\ntwo 8+0");
}

TEST_F(NativeOutside, OtherProgramsCannotChangeHowABoxWorks) {
  send(first_, EM_SETLIMITTEXT, 1);
  send(first_, EM_SETWORDBREAKPROC, 0, 1);
  send(first_, EM_SETHANDLE, 1);
  send(first_, EM_SETPASSWORDCHAR, '*');
  send(first_, EM_SETREADONLY, TRUE);
  // In a box with margins wider than itself, Wine looks forever for the place of the text.
  send(first_, EM_SETMARGINS, EC_LEFTMARGIN, 50);
  EXPECT_NE(LOWORD(send(first_, EM_GETMARGINS)), 50);
  EXPECT_EQ(send(first_, EM_GETPASSWORDCHAR), 0);
  EXPECT_EQ(GetWindowLongW(handleOf(first_), GWL_STYLE) & ES_READONLY, 0);
  type("123");
  send(first_, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
  send(first_, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
  EXPECT_EQ(first_.text(), "123");
}

TEST_F(NativeOutside, DestroyMessagesFromOutsideAreIgnored) {
  for (const UINT message : {WM_DESTROY, WM_NCDESTROY}) {
    for (const auto& control : window_->controls()) send(*control, message);
    SendMessageW(frame(), message, 0, 0);
  }
  button_.onClick = [this] { note("click"); };
  send(button_, BM_CLICK);
  EXPECT_EQ(takeLog(), Log{"click"});
  first_.setFocus();
  type("7");
  EXPECT_EQ(first_.text(), "7");
}

TEST_F(NativeOutside, MessagesWithInvalidPointersAreIgnored) {
  for (const LPARAM nowhere : {0, 1, -1}) {
    SendMessageW(frame(), WM_NOTIFY, 0, nowhere);
    SendMessageW(frame(), WM_DPICHANGED, MAKEWPARAM(96, 96), nowhere);
    SendMessageW(frame(), WM_CTLCOLOREDIT, 0, nowhere);
    SendMessageW(frame(), WM_COMMAND, MAKEWPARAM(0xFFFF, BN_CLICKED), nowhere);
  }
  RECT suggested = {0, 0, 300, 300};
  SendMessageW(frame(), WM_DPICHANGED, 0, reinterpret_cast<LPARAM>(&suggested));
  EXPECT_EQ(window_->bounds(), (controls::Rect{300, 300, 6200, 3800}));
  type("7");
  EXPECT_EQ(first_.text(), "7");
}

TEST_F(NativeOutside, CommandsBehindADialogAreIgnored) {
  window_->menuItem("mnuDeep").onClick = [this] { note("deep"); };
  button_.onClick = [this] { note("click"); };
  EnableWindow(frame(), FALSE);
  send(button_, BM_CLICK);
  for (WORD command = 0; command < 2000; ++command) SendMessageW(frame(), WM_COMMAND, command, 0);
  EXPECT_EQ(takeLog(), Log{});
  EnableWindow(frame(), TRUE);
}

TEST_F(NativeOutside, OnlyTheTapeComposesText) {
  EXPECT_EQ(ImmGetContext(handleOf(first_)), nullptr);
  EXPECT_EQ(ImmGetContext(handleOf(second_)), nullptr);
  const HIMC context = ImmGetContext(handleOf(tape_));
  EXPECT_NE(context, nullptr);
  ImmReleaseContext(handleOf(tape_), context);
}

TEST_F(NativeOutside, TextIsComposedAtTheCaretOfTheTape) {
  tape_.setText("one\r\ntwo");
  tape_.setFocus();
  tape_.setSelStart(6);
  send(tape_, WM_IME_STARTCOMPOSITION);
  const LRESULT caret = send(tape_, EM_POSFROMCHAR, 6);
  const HIMC context = ImmGetContext(handleOf(tape_));
  COMPOSITIONFORM form = {};
  EXPECT_TRUE(ImmGetCompositionWindow(context, &form));
  ImmReleaseContext(handleOf(tape_), context);
  EXPECT_EQ(form.ptCurrentPos.x, static_cast<short>(LOWORD(caret)));
  EXPECT_EQ(form.ptCurrentPos.y, static_cast<short>(HIWORD(caret)));
}

}  // namespace

}  // namespace contract
