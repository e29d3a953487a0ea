#include "engine/engine.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "inmemory/desktop.h"
#include "shell/frm_calc_layout.h"

namespace engine {
namespace {

EngineControls controlsOf(controls::Desktop& desktop, controls::Window& window) {
  return {.desktop = desktop,
          .txtEntry = window.textBox("txtEntry"),
          .txtTape = window.textBox("txtTape"),
          .txtDec = window.textBox("txtDec"),
          .chkFloatingDec = window.toggleButton("chkFloatingDec"),
          .chkShiftDec = window.toggleButton("chkShiftDec"),
          .chkTapeOff = window.toggleButton("chkTapeOff"),
          .cmdMemPlus = window.button("cmdMemPlus"),
          .mnuEditFloatingDecimal = window.menuItem("mnuEditFloatingDecimal"),
          .mnuEditStationaryDecimal = window.menuItem("mnuEditStationaryDecimal"),
          .mnuWinModes = window.menuItem("mnuWinModes"),
          .mnuWinPadTape = window.menuItem("mnuWinPadTape"),
          .mnuWinTapeOff = window.menuItem("mnuWinTapeOff")};
}

struct Case {
  const char* whatAUserSees;
  int number;
  const char* text;
};

class ShowError : public testing::TestWithParam<Case> {};

TEST_P(ShowError, ShowsOneMessage) {
  inmemory::Desktop desktop;
  const auto window = desktop.createWindow(shell::frmCalcLayout());
  Engine engine(controlsOf(desktop, *window));
  engine.ShowError(common::RunTimeError(GetParam().number));
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

// What the mouse makes of an entry between its down and its up.
std::size_t boxesAfterMouseMakes(const char* before, const char* after) {
  inmemory::Desktop desktop;
  const auto window = desktop.createWindow(shell::frmCalcLayout());
  Engine engine(controlsOf(desktop, *window));
  controls::TextBox& entry = window->textBox("txtEntry");
  entry.setText(before);
  engine.txtEntry_MouseDown();
  entry.setText(after);
  engine.txtEntry_MouseUp();
  return desktop.boxes.size();
}

TEST(EntryMouse, PastedWordIsReported) {
  EXPECT_EQ(boxesAfterMouseMakes("12", "12abc"), 1U);
}

TEST(EntryMouse, EntryCutAwayIsNoPaste) {
  EXPECT_EQ(boxesAfterMouseMakes("12", ""), 0U);
}

TEST(EntryMouse, ClickIntoAnUnfinishedEntryIsNoPaste) {
  EXPECT_EQ(boxesAfterMouseMakes("-", "-"), 0U);
}

}  // namespace
}  // namespace engine
