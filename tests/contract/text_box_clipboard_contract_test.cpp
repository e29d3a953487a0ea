#include "contract/text_box_contract.h"

// All ways to cut, copy, paste and undo.
namespace contract {

TEST_P(TextBoxContract, PastedTextReplacesTheSelection) {
  put(box_, "1995", 1, 2);
  paste(box_, "23");
  EXPECT_EQ(shown(box_), "1235 3+0");
  EXPECT_EQ(takeLog(), Log{"user"});
}

TEST_P(TextBoxContract, PasteHandlerMayChangeOrDiscardTheText) {
  box_.onPaste = [](std::string& text) { text = text == "drop" ? "" : "<" + text + ">"; };
  paste(box_, "a");
  paste(box_, "drop");
  EXPECT_EQ(box_.text(), "<a>");
}

TEST_P(TextBoxContract, DiscardedPasteLeavesTheSelection) {
  box_.onPaste = [](std::string& text) { text.clear(); };
  box_.onPasted = [this] { note("pasted"); };
  box_.onMenuEdit = [this](controls::MenuEdit) { note("edit"); };
  put(box_, "1995", 1, 2);
  paste(box_, "23");
  box_.closeMenu(controls::BoxCommand::Paste);
  EXPECT_EQ(shown(box_), "1995 1+2");
  EXPECT_EQ(takeLog(), Log{});
}

TEST_P(TextBoxContract, PasteIsReportedAlsoWhenItChangesNothing) {
  box_.onPasted = [this] { note("pasted"); };
  put(box_, "1995", 1, 2);
  paste(box_, "99");
  EXPECT_EQ(shown(box_), "1995 3+0");
  EXPECT_EQ(takeLog(), Log{"pasted"});
  paste(box_, "7");
  EXPECT_EQ(box_.text(), "19975");
  EXPECT_EQ(takeLog(), (Log{"user", "pasted"}));
}

TEST_P(TextBoxContract, CutAndCopyOfNothingLeaveTheClipboard) {
  kind_->desktop().setClipboardText("77");
  put(box_, "12345", 2);
  box_.copy();
  EXPECT_FALSE(box_.cut());
  EXPECT_EQ(box_.text(), "12345");
  EXPECT_EQ(takeLog(), Log{});
  EXPECT_EQ(kind_->desktop().clipboardText().text, "77");
}

TEST_P(TextBoxContract, UndoBringsTheLastEditBackAndThenRedoesIt) {
  box_.setText("12345");
  EXPECT_FALSE(box_.canUndo());
  EXPECT_FALSE(box_.undo());
  box_.select(1, 2);
  type("7");
  takeLog();
  EXPECT_TRUE(box_.canUndo());
  EXPECT_TRUE(box_.undo());
  EXPECT_EQ(shown(box_), "12345 3+0");
  EXPECT_TRUE(box_.undo());
  EXPECT_EQ(shown(box_), "1745 2+0");
  EXPECT_EQ(takeLog(), (Log{"user", "user"}));
}

TEST_P(TextBoxContract, AssignmentsAreNotUndone) {
  const auto edit = [this] {
    box_.moveCaretToEnd();
    type("7");
    EXPECT_TRUE(box_.canUndo());
    takeLog();
  };
  edit();
  box_.setText("12");
  EXPECT_FALSE(box_.undo());
  EXPECT_EQ(box_.text(), "12");
  EXPECT_EQ(takeLog(), Log{"program"});
  edit();
  box_.append("3");
  EXPECT_FALSE(box_.undo());
  EXPECT_EQ(box_.text(), "1273");
  EXPECT_EQ(takeLog(), Log{"program"});
}

TEST_P(TextBoxContract, PasteCommandGoesToItsHandler) {
  box_.onPasteCommand = [this](const std::optional<std::string>& text) {
    note(text.value_or("-"));
  };
  box_.setText("1995");
  takeLog();
  paste(box_, "a\r\nb");
  EXPECT_EQ(box_.text(), "1995");
  EXPECT_EQ(takeLog(), Log{"a\r\nb"});
}

TEST_P(TextBoxContract, ShiftInsertPastesBeforeTheBoxSeesTheKey) {
  box_.onKeyPress = [this](controls::KeyAscii&) { note("press"); };
  box_.onKeyUp = [this](controls::KeyCode key) { note("up " + std::to_string(key)); };
  kind_->desktop().setClipboardText("23");
  kind_->press({.key = controls::kKeyInsert, .shift = true}, 0);
  EXPECT_EQ(box_.text(), "23");
  EXPECT_EQ(takeLog(), (Log{"user", "up 45"}));
}

TEST_P(TextBoxContract, ShiftDeleteCutsAndCtrlInsertCopies) {
  put(box_, "12345", 1, 2);
  kind_->press({.key = controls::kKeyInsert, .control = true}, 0);
  EXPECT_EQ(kind_->desktop().clipboardText().text, "23");
  EXPECT_EQ(box_.text(), "12345");
  box_.select(3, 2);
  kind_->press({.key = controls::kKeyDelete, .shift = true}, 0);
  EXPECT_EQ(kind_->desktop().clipboardText().text, "45");
  EXPECT_EQ(box_.text(), "123");
  box_.setSelStart(1);
  kind_->press({.key = controls::kKeyDelete, .shift = true}, 0);
  kind_->press({.key = controls::kKeyDelete, .control = true}, 0);
  press(controls::kKeyInsert);
  EXPECT_EQ(box_.text(), "123");
  EXPECT_EQ(kind_->desktop().clipboardText().text, "45");
}

TEST_P(TextBoxContract, InsertAndDeleteWithOtherModifiersDoNothing) {
  kind_->desktop().setClipboardText("77");
  put(box_, "12345", 1, 2);
  press(controls::kKeyInsert);
  kind_->press({.key = controls::kKeyInsert, .shift = true, .control = true}, 0);
  kind_->press({.key = controls::kKeyDelete, .control = true}, 0);
  kind_->press({.key = controls::kKeyDelete, .shift = true, .control = true}, 0);
  EXPECT_EQ(shown(box_), "12345 1+2");
  EXPECT_EQ(takeLog(), Log{});
  EXPECT_EQ(kind_->desktop().clipboardText().text, "77");
}

TEST_P(TextBoxContract, TellsWhichEditKeysItTakes) {
  EXPECT_TRUE(box_.takeEditKey({.key = controls::kKeyDelete}));
  EXPECT_TRUE(box_.takeEditKey({.key = controls::kKeyDelete, .shift = true}));
  EXPECT_TRUE(box_.takeEditKey({.key = controls::kKeyDelete, .control = true}));
  EXPECT_TRUE(box_.takeEditKey({.key = controls::kKeyInsert, .control = true}));
  EXPECT_FALSE(box_.takeEditKey({.key = controls::kKeyInsert}));
  EXPECT_FALSE(box_.takeEditKey({.key = controls::kKeyHome}));
}

TEST_P(TextBoxContract, LockedClipboardChangesNothing) {
  kind_->desktop().setClipboardText("77");
  put(box_, "12345", 1, 2);
  box_.onPasteCommand = [this](const std::optional<std::string>&) { note("pasted"); };
  kind_->whileClipboardIsLocked([this] {
    box_.paste();
    box_.closeMenu(controls::BoxCommand::Paste);
    EXPECT_FALSE(box_.cut());
    box_.copy();
  });
  EXPECT_EQ(box_.text(), "12345");
  EXPECT_EQ(takeLog(), Log{});
  EXPECT_EQ(kind_->desktop().clipboardText().text, "77");
}

TEST_P(TextBoxContract, ContextMenuReportsPasteOrEdit) {
  using controls::BoxCommand;
  box_.onMenuEdit = [this](controls::MenuEdit edit) {
    note(edit == controls::MenuEdit::Pasted ? "pasted" : "edited");
  };
  put(box_, "12345", 0, 2);
  box_.closeMenu(BoxCommand::Cut);
  box_.closeMenu(BoxCommand::Paste);
  box_.closeMenu(BoxCommand::Undo);
  EXPECT_EQ(box_.text(), "345");
  EXPECT_EQ(takeLog(), (Log{"user", "edited", "user", "pasted", "user", "edited"}));
  box_.closeMenu(BoxCommand::Delete);
  box_.closeMenu(BoxCommand::None);
  box_.closeMenu(BoxCommand::SelectAll);
  box_.closeMenu(BoxCommand::Copy);
  EXPECT_EQ(takeLog(), Log{});
  EXPECT_EQ(kind_->desktop().clipboardText().text, "345");
  box_.closeMenu(BoxCommand::Delete);
  EXPECT_EQ(box_.text(), "");
  EXPECT_EQ(takeLog(), (Log{"user", "edited"}));
}

TEST_P(TextBoxContract, MousePasteGoesToTheCaretDespiteAPasteHandler) {
  box_.onPasteCommand = [this](const std::optional<std::string>&) { note("command"); };
  kind_->desktop().setClipboardText("9");
  put(box_, "12", 1);
  box_.closeMenu(controls::BoxCommand::Paste);
  EXPECT_EQ(box_.text(), "192");
  EXPECT_EQ(takeLog(), Log{"user"});
}

class OneLineContract : public ContractTest {};

TEST_F(OneLineContract, PasteStopsAtALineBreak) {
  for (const char* text : {"quick\r\n34", "quick\n34", "quick\r34", "quick"}) {
    first_.setText("");
    paste(first_, text);
    EXPECT_EQ(first_.text(), "quick") << testing::PrintToString(text);
  }
}

TEST_F(OneLineContract, EnterTypesNothing) {
  first_.setText("12");
  first_.typeCharacter(controls::kKeyEnter);
  EXPECT_EQ(first_.text(), "12");
}

TEST_F(OneLineContract, OverlongEditIsRefused) {
  paste(first_, std::string(controls::kLongestEdit, '7'));
  EXPECT_EQ(first_.length(), static_cast<int>(controls::kLongestEdit));
  first_.setText("12");
  first_.selectAll();
  paste(first_, std::string(controls::kLongestEdit + 1, '7'));
  EXPECT_EQ(first_.text(), "12");
  EXPECT_FALSE(first_.replaceSelection(std::string(controls::kLongestEdit + 1, '7')));
}

TEST_F(OneLineContract, PasteHandlerDecidesAboutLineBreaks) {
  first_.onPaste = [](std::string&) {};
  paste(first_, "12\r\n34");
  EXPECT_EQ(first_.text(), "12\r\n34");
}

}  // namespace contract
