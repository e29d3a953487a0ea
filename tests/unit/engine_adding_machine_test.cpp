#include "engine/adding_machine.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "engine/show_error.h"
#include "inmemory/desktop.h"
#include "shell/frm_calc_layout.h"

namespace engine {
namespace {

struct Case {
  const char* whatAUserSees;
  int number;
  const char* text;
};

class ShowError : public testing::TestWithParam<Case> {};

TEST_P(ShowError, ShowsOneMessage) {
  inmemory::Desktop desktop;
  showError(desktop, GetParam().number);
  ASSERT_EQ(desktop.boxes.size(), 1U);
  EXPECT_EQ(desktop.boxes[0].box.text, GetParam().text);
  EXPECT_EQ(desktop.boxes[0].box.title, "Tallyrex");
  EXPECT_EQ(desktop.boxes[0].box.buttons, controls::Buttons::Ok);
}

INSTANTIATE_TEST_SUITE_P(
    Errors, ShowError,
    testing::Values(Case{"RootOfANegative", 5, "Error:5 Invalid procedure call or argument"},
                    Case{"ResultBeyondTheRange", 6, "Error:6 Overflow"},
                    Case{"DivisionByWrittenZeros", 11, "Error:11 Division by zero"},
                    Case{"EntryThatIsNoNumber", 13, "Error:13 Type mismatch"},
                    Case{"WindowThatMustBeOpenedAfresh", 3020,
                         "Error:3020 Application-defined or object-defined error"
                         "\rPlease close this window and reload this form."},
                    Case{"TheOtherSuchError", 3021,
                         "Error:3021 Application-defined or object-defined error"
                         "\rPlease close this window and reload this form."}),
    [](const auto& each) { return std::string(each.param.whatAUserSees); });

// How many messages it takes when the mouse has left `text` in the entry.
std::size_t boxesAfterMouse(controls::MouseEdit edit, const char* text) {
  inmemory::Desktop desktop;
  const auto window = desktop.createWindow(shell::frmCalcLayout());
  AddingMachine machine{MachineControls(*window)};
  window->textBox("txtEntry").setText(text);
  machine.entryPaste().mouseUp(edit);
  return desktop.boxes.size();
}

TEST(EntryPaste, ClipboardThatIsHeldIsABeep) {
  inmemory::Desktop desktop;
  const auto window = desktop.createWindow(shell::frmCalcLayout());
  controls::TextBox& entry = window->textBox("txtEntry");
  entry.setText("12");
  desktop.clipboard = "7";
  desktop.clipboardHeld = true;
  entry.paste();
  entry.closeMenu(controls::BoxCommand::Paste);
  EXPECT_EQ(entry.text(), "12");
  EXPECT_EQ(desktop.beeps, 2);
}

TEST(EntryMouse, PastedWordIsReported) {
  EXPECT_EQ(boxesAfterMouse(controls::MouseEdit::Pasted, "12abc"), 1U);
}

TEST(EntryMouse, EntryEmptiedByAPasteOfNothingIsNotReported) {
  EXPECT_EQ(boxesAfterMouse(controls::MouseEdit::Pasted, ""), 0U);
}

TEST(EntryMouse, EntryCutAwayIsNoPaste) {
  EXPECT_EQ(boxesAfterMouse(controls::MouseEdit::Edited, ""), 0U);
}

TEST(EntryMouse, ClickIntoAnUnfinishedEntryIsNoPaste) {
  EXPECT_EQ(boxesAfterMouse(controls::MouseEdit::None, "-"), 0U);
}

}  // namespace
}  // namespace engine
