#include "controls/text_box.h"

#include "unit/controls_test.h"

namespace controls {
namespace {

class TextBoxTest : public ControlsTest {};

TEST_F(TextBoxTest, AlignmentIsShownWhenItChanges) {
  EXPECT_EQ(box_.alignment(), Alignment::Left);
  box_.setAlignment(Alignment::Left);
  EXPECT_EQ(takeLog(), Log{});
  box_.setAlignment(Alignment::Right);
  box_.setAlignment(Alignment::Right);
  EXPECT_EQ(box_.alignment(), Alignment::Right);
  EXPECT_EQ(takeLog(), Log{"box alignment"});
}

TEST_F(TextBoxTest, BeepsWhenTheClipboardIsLocked) {
  box_.setText("12");
  box_.selectAll();
  desktop_.clipboardLocked = true;
  const auto beeps = [this] { return std::exchange(desktop_.beeps, 0); };
  box_.paste();
  EXPECT_EQ(beeps(), 1);
  box_.copy();
  EXPECT_EQ(beeps(), 1);
  box_.cut();
  EXPECT_EQ(beeps(), 1);
  box_.closeMenu(BoxCommand::Paste);
  EXPECT_EQ(beeps(), 1);
  desktop_.clipboardLocked = false;
  box_.copy();
  box_.paste();
  box_.closeMenu(BoxCommand::Paste);
  EXPECT_EQ(beeps(), 0);
}

TEST_F(TextBoxTest, BeepsAtAnOverlongEdit) {
  box_.replaceSelection(std::string(kLongestEdit + 1, '7'));
  EXPECT_EQ(desktop_.beeps, 1);
  box_.replaceSelection(std::string(kLongestEdit, '7'));
  EXPECT_EQ(desktop_.beeps, 1);
}

TEST_F(TextBoxTest, PasteCommandHearsOfAClipboardWithoutText) {
  box_.onPasteCommand = [this](const std::optional<std::string>& text) {
    desktop_.note(text.value_or("nothing"));
  };
  box_.paste();
  desktop_.clipboard = "";
  box_.paste();
  EXPECT_EQ(takeLog(), (Log{"nothing", ""}));
}

TEST_F(TextBoxTest, ClipboardWithoutTextPastesNothing) {
  box_.setText("12");
  box_.selectAll();
  box_.onPasted = noting("pasted");
  box_.paste();
  box_.closeMenu(BoxCommand::Paste);
  EXPECT_EQ(box_.text(), "12");
  EXPECT_EQ(takeLog(), Log{});
}

TEST(TextOfACell, LosesOneLineEnd) {
  EXPECT_EQ(withoutLineEnd("12\r\n"), "12");
  EXPECT_EQ(withoutLineEnd("12\n"), "12");
  EXPECT_EQ(withoutLineEnd("12\r"), "12");
  EXPECT_EQ(withoutLineEnd("12\r\n\r\n"), "12\r\n");
  EXPECT_EQ(withoutLineEnd("12\n\n"), "12\n");
  EXPECT_EQ(withoutLineEnd("12"), "12");
  EXPECT_EQ(withoutLineEnd(""), "");
}

}  // namespace
}  // namespace controls
