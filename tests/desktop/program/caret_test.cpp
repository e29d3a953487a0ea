#include "desktop/program/program_test.h"

namespace program {
namespace {

// Where a click of the mouse puts the caret.
class CaretTest : public ProgramTest {
 protected:
  /// The left edge of a character of the entry.
  static POINT placeOf(int character) {
    HWND entry = program().entry();
    const LRESULT edge = ask(entry, EM_POSFROMCHAR, static_cast<WPARAM>(character));
    RECT line = {};
    GetClientRect(entry, &line);
    POINT place = {static_cast<short>(LOWORD(edge)) + 1, line.bottom / 2};
    ClientToScreen(entry, &place);
    return place;
  }

  static void expectClickPlacesCaret(POINT place, int character) {
    const LRESULT nothingSelected = MAKELRESULT(character, character);
    const auto selection = [] { return ask(program().entry(), EM_GETSEL); };
    // Two clicks are never a double click.
    Sleep(GetDoubleClickTime());
    clickUntil(place, [&] { return selection() == nothingSelected; });
    EXPECT_EQ(selection(), nothingSelected) << "not in front of character " << character << " but "
                                            << LOWORD(selection()) << " to " << HIWORD(selection());
  }
};

TEST_F(CaretTest, ClickInTheEntryPlacesItWhereTheMousePoints) {
  start();
  type("1234567");
  expectText(program().entry(), L"1,234,567");
  for (const int character : {6, 2, 8, 4, 0, 7})
    expectClickPlacesCaret(placeOf(character), character);
  clickTape();
  expectClickPlacesCaret(placeOf(3), 3);
  type("9");
  expectText(program().entry(), L"12,934,567");
}

TEST_F(CaretTest, ClickBesideAShortNumberPlacesItInFront) {
  start();
  type("34567");
  expectText(program().entry(), L"34,567");
  expectClickPlacesCaret(middleOf(program().entry()), 0);
}

}  // namespace
}  // namespace program
