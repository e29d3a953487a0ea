#include "contract/text_box_contract.h"

namespace contract {

using controls::kKeyDown;
using controls::kKeyEnd;
using controls::kKeyHome;
using controls::kKeyLeft;
using controls::kKeyUp;

using Places = std::vector<int>;

INSTANTIATE_TEST_SUITE_P(Boxes, TextBoxContract, testing::Values("first", "tape"));

TEST_P(TextBoxContract, AssigningTextMovesTheCaretToTheStartAndRaisesChange) {
  put(box_, "12345", 2, 2);
  box_.setText("12345");
  EXPECT_EQ(shown(box_), "12345 0+0");
  EXPECT_EQ(takeLog(), Log{"program"});
}

TEST_P(TextBoxContract, PlacingTheCaretDropsTheSelection) {
  put(box_, "12345", 1, 3);
  EXPECT_EQ(box_.selectedText(), "234");
  EXPECT_EQ(box_.textWithoutSelection(), "15");
  box_.setSelStart(2);
  EXPECT_EQ(shown(box_), "12345 2+0");
}

TEST_P(TextBoxContract, SelectionIsClampedToTheText) {
  put(box_, "123", 2, 9);
  EXPECT_EQ(shown(box_), "123 2+1");
  box_.select(-4, 2);
  EXPECT_EQ(shown(box_), "123 0+2");
  box_.select(1, -2);
  EXPECT_EQ(shown(box_), "123 1+0");
  box_.setSelLength(1);
  EXPECT_EQ(shown(box_), "123 1+1");
  box_.setSelStart(99);
  EXPECT_EQ(shown(box_), "123 3+0");
}

TEST_P(TextBoxContract, TypedCharacterIsInsertedAtTheCaret) {
  put(box_, "13", 1);
  type("2");
  EXPECT_EQ(shown(box_), "123 2+0");
  EXPECT_EQ(takeLog(), Log{"user"});
}

TEST_P(TextBoxContract, TypedCharacterReplacesTheSelection) {
  put(box_, "1995", 1, 2);
  type("2");
  EXPECT_EQ(shown(box_), "125 2+0");
  EXPECT_EQ(takeLog(), Log{"user"});
}

TEST_P(TextBoxContract, BackspaceDeletesTheSelectionOrTheCharacterBefore) {
  put(box_, "12345", 2);
  type("\b");
  EXPECT_EQ(shown(box_), "1345 1+0");
  box_.select(1, 2);
  type("\b");
  EXPECT_EQ(box_.text(), "15");
  box_.select(1, 1);
  type("\b");
  EXPECT_EQ(box_.text(), "1");
  EXPECT_EQ(takeLog(), (Log{"user", "user", "user"}));
}

TEST_P(TextBoxContract, DeleteDeletesTheSelectionOrTheCharacterAfter) {
  put(box_, "12345", 2);
  press(controls::kKeyDelete);
  EXPECT_EQ(shown(box_), "1245 2+0");
  box_.select(0, 2);
  press(controls::kKeyDelete);
  EXPECT_EQ(box_.text(), "45");
  box_.select(0, 1);
  press(controls::kKeyDelete);
  EXPECT_EQ(box_.text(), "5");
  EXPECT_EQ(takeLog(), (Log{"user", "user", "user"}));
}

TEST_P(TextBoxContract, EditWithoutEffectRaisesNoChange) {
  box_.setText("12");
  takeLog();
  type("\b");
  box_.moveCaretToEnd();
  press(controls::kKeyDelete);
  press(controls::kKeyLeft);
  EXPECT_EQ(box_.text(), "12");
  EXPECT_EQ(takeLog(), Log{});
}

TEST_P(TextBoxContract, KeystrokeRaisesPressEditChangeRelease) {
  box_.onKeyPress = [this](controls::KeyAscii& key) {
    note("press " + std::to_string(key) + " at " + box_.text());
  };
  box_.onKeyUp = [this](controls::KeyCode key) {
    note("up " + std::to_string(key) + " at " + box_.text());
  };
  type("7");
  EXPECT_EQ(takeLog(), (Log{"press 55 at ", "user", "up 55 at 7"}));
  press(controls::kKeyHome);
  EXPECT_EQ(takeLog(), Log{"up 36 at 7"});
}

TEST_P(TextBoxContract, KeyPressMayDiscardTheCharacter) {
  box_.onKeyPress = [](controls::KeyAscii& key) { key = 0; };
  type("7\b");
  EXPECT_EQ(box_.text(), "");
  EXPECT_EQ(takeLog(), Log{});
}

TEST_P(TextBoxContract, KeyPressMayMoveTheCaretBeforeTheEdit) {
  put(box_, "1,234", 2);
  box_.onKeyPress = [this](controls::KeyAscii&) { box_.setSelStart(1); };
  type("\b");
  EXPECT_EQ(shown(box_), ",234 0+0");
}

TEST_P(TextBoxContract, KeyPressMayAssignTheTextBeforeTheEdit) {
  box_.setText("15");
  box_.onKeyPress = [this](controls::KeyAscii&) { box_.setText(""); };
  type("7");
  EXPECT_EQ(shown(box_), "7 1+0");
}

TEST_P(TextBoxContract, BackspaceAndDeleteRemoveASurrogatePairWhole) {
  for (const int caret : {3, 2}) {
    put(box_, "a\xF0\x9F\x92\xB0z", caret);
    type("\b");
    EXPECT_EQ(shown(box_), "az 1+0") << "caret at " << caret;
  }
  for (const int caret : {1, 2}) {
    put(box_, "a\xF0\x9F\x92\xB0z", caret);
    press(controls::kKeyDelete);
    EXPECT_EQ(shown(box_), "az 1+0") << "caret at " << caret;
  }
}

TEST_P(TextBoxContract, SurrogatePairIsRemovedWholeAtEitherEndOfTheText) {
  const std::string pair = "\xF0\x9F\x92\xB0";
  for (const std::string& text : {pair, pair + "z", "a" + pair}) {
    const int start = text.front() == 'a' ? 1 : 0;
    put(box_, text, start + 1);
    type("\b");
    EXPECT_EQ(box_.length(), static_cast<int>(text.size()) - 4) << text;
    put(box_, text, start + 1);
    press(controls::kKeyDelete);
    EXPECT_EQ(box_.length(), static_cast<int>(text.size()) - 4) << text;
  }
}

TEST_P(TextBoxContract, TwoLettersOfTwoOrThreeBytesAreNoPair) {
  for (const char* text : {"\u00E4\u00F6", "a\u20AC", "\u20ACa", "\u20AC\u20AC"}) {
    put(box_, text, 1);
    type("\b");
    EXPECT_EQ(box_.length(), 1) << text;
  }
}

TEST_P(TextBoxContract, EditIsAnnouncedBeforeItHappens) {
  box_.onEdit = [this](const common::TextEdit& edit) {
    note(std::to_string(edit.start) + "-" + std::to_string(edit.removed) + "+" +
         std::string(edit.inserted) + " at " + box_.text());
  };
  box_.setText("12");
  box_.setText("345");
  box_.append("67");
  box_.select(1, 2);
  type("8");
  type("\b");
  box_.undo();
  EXPECT_EQ(takeLog(),
            (Log{"0-0+12 at ", "program", "0-2+345 at 12", "program", "3-0+67 at 345", "program",
                 "1-2+8 at 34567", "user", "1-1+ at 3867", "user", "1-0+8 at 367", "user"}));
}

TEST_P(TextBoxContract, SelectionEndingInsideACharacterRemovesItWhole) {
  put(box_, "a\xF0\x9F\x92\xB0\xF0\x9F\x92\xB0z", 2, 2);
  type("\b");
  EXPECT_EQ(box_.text(), "az");
  put(box_, "a\xF0\x9F\x92\xB0z", 0, 2);
  press(controls::kKeyDelete);
  EXPECT_EQ(box_.text(), "z");
}

TEST_P(TextBoxContract, TypingOverHalfACharacterReplacesItWholeAndUndoBringsItBack) {
  const std::string text = "a\xF0\x9F\x92\xB0\xF0\x9F\x92\xB0z";
  for (const int start : {1, 2}) {
    put(box_, text, start, 2);
    type("7");
    EXPECT_EQ(box_.text(), start == 1 ? "a7\xF0\x9F\x92\xB0z" : "a7z") << "from " << start;
    EXPECT_TRUE(box_.undo());
    EXPECT_EQ(box_.text(), text) << "from " << start;
  }
}

TEST_P(TextBoxContract, CuttingHalfACharacterTakesItAlongWhole) {
  put(box_, "a\xF0\x9F\x92\xB0z", 2, 2);
  EXPECT_TRUE(box_.cut());
  EXPECT_EQ(box_.text(), "a");
  box_.paste();
  EXPECT_EQ(box_.text(), "a\xF0\x9F\x92\xB0z");
}

TEST_P(TextBoxContract, AppendingMovesTheCaretToTheEnd) {
  box_.setText("Top");
  takeLog();
  box_.append("12");
  EXPECT_EQ(shown(box_), "Top12 5+0");
  EXPECT_EQ(takeLog(), Log{"program"});
}

TEST_P(TextBoxContract, LettersOfOtherLanguagesCountAsOneCharacter) {
  box_.setText("€ä7");
  EXPECT_EQ(box_.length(), 3);
  box_.select(1, 1);
  EXPECT_EQ(box_.selectedText(), "ä");
  EXPECT_EQ(box_.textWithoutSelection(), "€7");
}

TEST_P(TextBoxContract, AlignmentChangesWithoutTouchingTheText) {
  put(box_, "12345", 1, 2);
  for (const auto alignment : {controls::Alignment::Left, controls::Alignment::Right}) {
    box_.setAlignment(alignment);
    EXPECT_EQ(box_.alignment(), alignment);
  }
  EXPECT_EQ(shown(box_), "12345 1+2");
  EXPECT_EQ(takeLog(), Log{});
}

class TapeContract : public ContractTest {
 protected:
  TapeContract() { focus(tape_); }

  /// Where the caret is after each of the keys.
  std::vector<int> caretAfterEach(std::initializer_list<controls::KeyCode> keys) {
    std::vector<int> places;
    for (const controls::KeyCode key : keys) {
      press(key);
      places.push_back(tape_.selStart());
    }
    return places;
  }
};

TEST_F(TapeContract, CanBeEditedByHand) {
  put(tape_, "Top\r\n12.00 + ", 3);
  type(" rent\rx");
  EXPECT_EQ(shown(tape_), "Top rent\r\nx\r\n12.00 +  11+0");
}

TEST_F(TapeContract, CountsALineBreakAsTwoCharacters) {
  tape_.setText("a\r\nb\r\nc");
  EXPECT_EQ(tape_.length(), 7);
  tape_.select(3, 4);
  EXPECT_EQ(shown(tape_), "a\r\nb\r\nc 3+4");
  EXPECT_EQ(tape_.selectedText(), "b\r\nc");
}

TEST_F(TapeContract, BackspaceAndDeleteRemoveALineBreakWhole) {
  for (const int caret : {3, 2}) {
    put(tape_, "a\r\nb", caret);
    type("\b");
    EXPECT_EQ(shown(tape_), "ab 1+0") << "caret at " << caret;
  }
  for (const int caret : {1, 2}) {
    put(tape_, "a\r\nb", caret);
    press(controls::kKeyDelete);
    EXPECT_EQ(shown(tape_), "ab 1+0") << "caret at " << caret;
  }
}

TEST_F(TapeContract, LoneHalfOfALineBreakIsACharacter) {
  put(tape_, "a\r\n\rb", 4);
  type("\b");
  EXPECT_EQ(tape_.text(), "a\r\nb");
}

TEST_F(TapeContract, LineFeedAloneEndsALineAndCarriageReturnAloneDoesNot) {
  put(tape_, "a\rb\nc\r\nd\r", 3);
  EXPECT_EQ(caretAfterEach({kKeyHome, kKeyEnd, kKeyDown, kKeyHome}), (Places{0, 3, 5, 4}));
  tape_.setSelStart(8);
  EXPECT_EQ(caretAfterEach({kKeyEnd, kKeyDown, kKeyHome}), (Places{9, 9, 7}));
}

TEST_F(TapeContract, HomeAndEndGoToTheEndsOfTheLine) {
  put(tape_, "one\r\ntwo", 6);
  EXPECT_EQ(caretAfterEach({kKeyEnd, kKeyHome, kKeyUp}), (Places{8, 5, 0}));
}

TEST_F(TapeContract, HasNoLengthLimit) {
  std::string expected = "Top";
  tape_.setText("Top");
  for (int line = 0; line < 300; ++line) {
    tape_.append("\r\n1,234.50 + ");
    expected += "\r\n1,234.50 + ";
  }
  EXPECT_EQ(tape_.text(), expected);
  EXPECT_EQ(tape_.length(), static_cast<int>(expected.size()));
  EXPECT_EQ(tape_.selStart(), tape_.length());
}

TEST_F(TapeContract, UpAndDownKeepTheDistanceFromTheStartOfLeftAlignedLines) {
  tape_.setAlignment(controls::Alignment::Left);
  put(tape_, "12345\r\n1\r\n123", 4);
  EXPECT_EQ(caretAfterEach({kKeyUp, kKeyDown, kKeyDown, kKeyDown, kKeyUp, kKeyUp}),
            (Places{4, 8, 13, 13, 8, 4}));
}

TEST_F(TapeContract, UpAndDownKeepTheDistanceFromTheEndOfRightAlignedLines) {
  tape_.setAlignment(controls::Alignment::Right);
  put(tape_, "12345\r\n1\r\n123", 2);
  EXPECT_EQ(caretAfterEach({kKeyUp, kKeyDown, kKeyDown, kKeyDown, kKeyUp, kKeyUp}),
            (Places{2, 7, 10, 10, 7, 2}));
}

TEST_F(TapeContract, OtherMovesOfTheCaretChangeTheColumnOfUpAndDown) {
  tape_.setAlignment(controls::Alignment::Left);
  put(tape_, "12345\r\n1\r\n12345", 5);
  EXPECT_EQ(caretAfterEach({kKeyDown, kKeyLeft, kKeyDown, kKeyEnd, kKeyUp, kKeyUp}),
            (Places{8, 7, 10, 15, 8, 5}));
}

}  // namespace contract
