#include "engine/adding_machine.h"

#include <gtest/gtest.h>

#include <memory>

#include "common/run_time_error.h"
#include "engine/show_error.h"
#include "inmemory/desktop.h"
#include "shell/frm_calc_layout.h"

namespace engine {
namespace {

TEST(ShowError, ShowsOneMessage) {
  inmemory::Desktop desktop;
  showError(desktop, common::kDivisionByZero);
  ASSERT_EQ(desktop.boxes.size(), 1U);
  EXPECT_EQ(desktop.boxes[0].box.text, "Error:11 Division by zero");
  EXPECT_EQ(desktop.boxes[0].box.title, "Tallyrex");
  EXPECT_EQ(desktop.boxes[0].box.buttons, controls::Buttons::Ok);
}

class EntryKey : public testing::Test {
 protected:
  // What is left to be typed of a character.
  controls::KeyAscii afterPress(controls::KeyAscii key) {
    machine_.keyPress(key);
    return key;
  }

  inmemory::Desktop desktop_;
  std::unique_ptr<controls::Window> window_ = desktop_.createWindow(shell::frmCalcLayout());
  MachineControls controls_{*window_};
  AddingMachine machine_{controls_};
};

TEST_F(EntryKey, DigitIsTyped) {
  EXPECT_EQ(afterPress('7'), '7');
  EXPECT_EQ(desktop_.beeps, 0);
}

TEST_F(EntryKey, OperatorIsDiscarded) {
  EXPECT_EQ(afterPress('+'), 0);
  EXPECT_EQ(desktop_.beeps, 0);
}

TEST_F(EntryKey, LetterIsDiscardedWithABeep) {
  EXPECT_EQ(afterPress('x'), 0);
  EXPECT_EQ(desktop_.beeps, 1);
}

TEST_F(EntryKey, PasteCharacterIsKept) {
  EXPECT_EQ(afterPress(controls::kCtrlV), controls::kCtrlV);
  EXPECT_EQ(afterPress(controls::kCtrlV - 1), 0);
  EXPECT_EQ(desktop_.beeps, 1);
}

// A Backspace that is held down leaves it until the key comes up.
TEST_F(EntryKey, LoneSeparatorIsNoEntry) {
  controls_.txtEntry.setText(",");
  EXPECT_EQ(afterPress('+'), 0);
  EXPECT_EQ(controls_.txtEntry.text(), "");
  EXPECT_TRUE(desktop_.boxes.empty());
}

TEST(EntryPaste, LockedClipboardBeeps) {
  inmemory::Desktop desktop;
  const auto window = desktop.createWindow(shell::frmCalcLayout());
  controls::TextBox& entry = window->textBox("txtEntry");
  entry.setText("12");
  desktop.clipboard = "7";
  desktop.clipboardLocked = true;
  entry.paste();
  entry.closeMenu(controls::BoxCommand::Paste);
  EXPECT_EQ(entry.text(), "12");
  EXPECT_EQ(desktop.beeps, 2);
}

}  // namespace
}  // namespace engine
