#include <gtest/gtest.h>

#include "annuity_stand_in_program.h"
#include "inmemory/desktop.h"

namespace annuity {
namespace {

class MoneyField : public testing::Test {
 protected:
  MoneyField() {
    calculator_.load(common::AnnuityKind::Standard);
    calculator_.show();
    box_.setFocus();
    box_.setText("1,234");
    box_.selectAll();
  }

  inmemory::Desktop desktop_;
  StandInProgram program_;
  frmAnnuity calculator_{desktop_, program_};
  controls::TextBox& box_ = calculator_.window().textBox("txtPV");
};

TEST_F(MoneyField, GroupsWhatAnotherProgramPastesAtOnce) {
  desktop_.setClipboardText("1234567.5");
  box_.paste();
  EXPECT_EQ(box_.text(), "1,234,567.5");
}

TEST_F(MoneyField, GroupsWhatItsOwnMenuPastesAtOnce) {
  desktop_.setClipboardText("1234567.5");
  box_.closeMenu(controls::BoxCommand::Paste);
  EXPECT_EQ(box_.text(), "1,234,567.5");
}

TEST_F(MoneyField, GroupsWhatItsOwnMenuLeavesAtOnce) {
  box_.select(2, 1);
  box_.closeMenu(controls::BoxCommand::Delete);
  EXPECT_EQ(box_.text(), "134");
}

// What is left to be typed of a character.
controls::KeyAscii afterPress(controls::Control& control, controls::KeyAscii key) {
  control.onKeyPress(key);
  return key;
}

TEST_F(MoneyField, DiscardsWhatItDoesNotAccept) {
  EXPECT_EQ(afterPress(box_, '7'), '7');
  EXPECT_EQ(desktop_.beeps, 0);
  EXPECT_EQ(afterPress(box_, 'x'), 0);
  EXPECT_EQ(desktop_.beeps, 1);
}

TEST_F(MoneyField, DiscardsEnter) {
  EXPECT_EQ(afterPress(box_, controls::kKeyEnter), 0);
  EXPECT_EQ(desktop_.beeps, 0);
}

}  // namespace
}  // namespace annuity
