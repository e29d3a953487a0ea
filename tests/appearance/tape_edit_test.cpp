#include "appearance/tape_test.h"

// The tape as an edit control: selecting with the mouse, moving the caret, scrolling.
namespace appearance {
namespace {

class TapeEdit : public TapeAppearanceTest {
 protected:
  void SetUp() override {
    TapeAppearanceTest::SetUp();
    tell("focus txtTape");
  }
  void click(int place, UINT message = WM_LBUTTONDOWN) {
    const POINT point = pointOf(place);
    send(message, MK_LBUTTON, MAKELPARAM(point.x + 1, point.y + 1));
  }
  void doubleClick(int place) {
    click(place);
    send(WM_LBUTTONUP);
    click(place, WM_LBUTTONDBLCLK);
  }
  void dragTo(int place) {
    click(place, WM_MOUSEMOVE);
    send(WM_LBUTTONUP);
  }
  void expectSelected(int from, int to) {
    EXPECT_EQ(selectionStart(), from);
    EXPECT_EQ(selectionEnd(), to);
  }
  int caret() { return selectionEnd(); }
  void press(const char* key) { tell(std::string("press ") + key); }
};

TEST_F(TapeEdit, DoubleClickSelectsTheWordAndTheBlanksAfterIt) {
  write(L"one two  three\r\nfour\r\n");
  doubleClick(5);
  expectSelected(4, 9);
  send(WM_LBUTTONUP);
}

TEST_F(TapeEdit, DoubleClickOnTheLastWordStopsAtTheLineEnd) {
  write(L"one two\r\nfour\r\n");
  doubleClick(5);
  expectSelected(4, 7);
  send(WM_LBUTTONUP);
}

TEST_F(TapeEdit, DraggingAfterADoubleClickSelectsWholeWords) {
  write(L"one two three four\r\n");
  doubleClick(5);
  dragTo(9);
  expectSelected(4, 14);
  click(17);
  send(WM_LBUTTONUP);
  doubleClick(5);
  dragTo(1);
  expectSelected(0, 8);
}

TEST_F(TapeEdit, TripleClickSelectsTheLineAndDraggingSelectsMoreLines) {
  write(L"one\r\ntwo three\r\nfour\r\n");
  doubleClick(6);
  send(WM_LBUTTONUP);
  click(6);
  expectSelected(5, 16);
  dragTo(18);
  expectSelected(5, 22);
}

TEST_F(TapeEdit, LaterOrDistantClickIsASingleClick) {
  write(L"one two three four five\r\n");
  doubleClick(1);
  send(WM_LBUTTONUP);
  click(14);
  send(WM_LBUTTONUP);
  expectSelected(14, 14);
}

// On a slow computer, the pointer is ahead of the mouse messages.
TEST_F(TapeEdit, TimerOfADragUsesTheLastMouseMessage) {
  write(L"one two three four five\r\n");
  click(14);
  send(WM_TIMER, 1);
  expectSelected(14, 14);
  click(18, WM_MOUSEMOVE);
  send(WM_TIMER, 1);
  expectSelected(14, 18);
  send(WM_MOUSEMOVE, 0);
  expectSelected(14, 18);
  send(WM_LBUTTONUP);
}

TEST_F(TapeEdit, CaretRemembersItsColumnAcrossAShortLine) {
  tell("menu mnuWinPadTape");
  tell("focus txtTape");
  write(L"123456789\r\n12\r\n123456789\r\n");
  send(EM_SETSEL, 7, 7);
  press("Down");
  EXPECT_EQ(caret(), 13);
  press("Down");
  EXPECT_EQ(caret(), 22);
  press("Up");
  press("Up");
  EXPECT_EQ(caret(), 7);
  press("Left");
  press("Down");
  press("Down");
  EXPECT_EQ(caret(), 21) << "a key sideways makes another column";
}

TEST_F(TapeEdit, CaretMovesUpAndDownByScreenPosition) {
  write(L"1,234.50 + \r\n5.00 + \r\n");
  const int point = 5;
  send(EM_SETSEL, point, point);
  press("Down");
  EXPECT_EQ(pointOf(caret()).x, pointOf(point).x)
      << "in right-aligned lines, below the same figure";
}

TEST_F(TapeEdit, TabStopsAreEightColumnsApart) {
  tell("menu mnuWinPadTape");
  tell("focus txtTape");
  write(L"a\tb\r\nabc\tb\r\n12345678\tb\r\n");
  const int width = cell();
  EXPECT_EQ(pointOf(2).x, pointOf(0).x + 8 * width);
  EXPECT_EQ(pointOf(start(1) + 4).x, pointOf(0).x + 8 * width);
  EXPECT_EQ(pointOf(start(2) + 9).x, pointOf(0).x + 16 * width);
  const POINT tab = pointOf(1);
  EXPECT_EQ(placeAt({tab.x + 2, tab.y}), 1);
  EXPECT_EQ(placeAt({tab.x + 6 * width, tab.y}), 2);
}

TEST_F(TapeEdit, LongLinesScrollHorizontally) {
  tell("menu mnuWinPadTape");
  tell("focus txtTape");
  write(L"Top\r\n");
  EXPECT_FALSE(GetWindowLongW(paper(), GWL_STYLE) & WS_HSCROLL);
  write(std::wstring(80, L'8') + L"\r\n");
  EXPECT_TRUE(GetWindowLongW(paper(), GWL_STYLE) & WS_HSCROLL);
  const LONG left = pointOf(0).x;
  send(WM_HSCROLL, SB_LINERIGHT);
  EXPECT_EQ(pointOf(0).x, left - cell());
  send(WM_MOUSEHWHEEL, MAKEWPARAM(0, WHEEL_DELTA));
  EXPECT_EQ(pointOf(0).x, left - 4 * cell());
  send(WM_MOUSEWHEEL, MAKEWPARAM(MK_SHIFT, WHEEL_DELTA));
  EXPECT_EQ(pointOf(0).x, left - cell());
  send(WM_HSCROLL, SB_RIGHT);
  EXPECT_LE(pointOf(80).x, clientSize(paper()).cx);
  send(WM_HSCROLL, SB_LEFT);
  EXPECT_EQ(pointOf(0).x, left);
  press("End");
  EXPECT_LE(pointOf(80).x, clientSize(paper()).cx);
  EXPECT_LT(pointOf(0).x, 0);
  press("Home");
  EXPECT_GE(pointOf(0).x, 0);
  write(L"Top\r\n");
  EXPECT_FALSE(GetWindowLongW(paper(), GWL_STYLE) & WS_HSCROLL);
}

TEST_F(TapeEdit, LongLinesOfThePlainTapeScrollFromTheirEnd) {
  write(std::wstring(80, L'8') + L"\r\n12.00 + \r\n");
  send(WM_HSCROLL, SB_LEFT);
  EXPECT_GE(pointOf(0).x, 0);
  EXPECT_GT(pointOf(80).x, clientSize(paper()).cx);
  EXPECT_EQ(pointOf(start(1) + 8).x, pointOf(80).x) << "all lines end at one edge";
  send(WM_HSCROLL, SB_RIGHT);
  EXPECT_LE(pointOf(80).x, clientSize(paper()).cx);
}

TEST_F(TapeEdit, AnswersScrollMessages) {
  std::wstring text = L"Top";
  for (int line = 0; line < 100; ++line) text += L"\r\n12.00 + ";
  write(text);
  const auto firstLine = [this] { return send(EM_GETFIRSTVISIBLELINE); };
  EXPECT_EQ(firstLine(), 0);
  EXPECT_EQ(send(EM_LINESCROLL, 0, 5), TRUE);
  EXPECT_EQ(firstLine(), 5);
  EXPECT_EQ(send(EM_SCROLL, SB_LINEDOWN), MAKELRESULT(1, TRUE));
  EXPECT_EQ(firstLine(), 6);
  EXPECT_EQ(send(EM_SCROLL, SB_LINEUP), MAKELRESULT(-1, TRUE));
  EXPECT_EQ(send(EM_SCROLL, SB_TOP), FALSE) << "an action that the box does not know";
  EXPECT_EQ(send(EM_SCROLLCARET), TRUE);
  EXPECT_EQ(firstLine(), 0);
  RECT area = {};
  send(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&area));
  EXPECT_GT(area.right, area.left);
  EXPECT_LE(area.right, clientSize(paper()).cx);
  EXPECT_EQ(area.bottom, clientSize(paper()).cy);
  EXPECT_TRUE(GetWindowLongW(paper(), GWL_STYLE) & ES_MULTILINE);
}

}  // namespace
}  // namespace appearance
