#include "desktop/program/program_test.h"

namespace program {
namespace {

// Where a click of the mouse puts the caret.
class CaretTest : public ProgramTest {
 protected:
  /// Clicks at the left edge of a character of the entry.
  static void clickInFrontOf(int character) {
    HWND entry = program().entry();
    const LRESULT edge = ask(entry, EM_POSFROMCHAR, static_cast<WPARAM>(character));
    RECT line = {};
    GetClientRect(entry, &line);
    POINT place = {static_cast<short>(LOWORD(edge)) + 1, line.bottom / 2};
    ClientToScreen(entry, &place);
    click(place);
  }

  static void expectCaretAt(int character) {
    const LRESULT nothingSelected = MAKELRESULT(character, character);
    EXPECT_TRUE(eventually([&] { return ask(program().entry(), EM_GETSEL) == nothingSelected; }))
        << "not in front of character " << character << " but "
        << LOWORD(ask(program().entry(), EM_GETSEL)) << " to "
        << HIWORD(ask(program().entry(), EM_GETSEL));
  }
};

TEST_F(CaretTest, ClickInTheEntryPlacesItWhereTheMousePoints) {
  start();
  type("1234567");
  expectText(program().entry(), L"1,234,567");
  // Never so near to the last that two clicks are a double click.
  for (const int character : {6, 2, 8, 4, 0, 7}) {
    clickInFrontOf(character);
    expectCaretAt(character);
  }
  click(middleOf(program().tape()));
  EXPECT_TRUE(eventually([] { return program().focus() == program().tape(); }));
  clickInFrontOf(3);
  expectCaretAt(3);
  type("9");
  expectText(program().entry(), L"12,934,567");
}

TEST_F(CaretTest, ClickBesideAShortNumberPlacesItInFront) {
  start();
  type("34567");
  expectText(program().entry(), L"34,567");
  click(middleOf(program().entry()));
  expectCaretAt(0);
}

}  // namespace
}  // namespace program
