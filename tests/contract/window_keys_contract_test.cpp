#include "contract/contract_test.h"

// Which keystrokes a window takes before the focused control sees them.
namespace contract {

using controls::KeyCode;
using controls::KeyStroke;

class WindowKeysContract : public ContractTest {
 protected:
  /// What the arrow makes of the focus, from an option of the group of three.
  std::string afterArrow(const std::string& from, KeyCode arrow) {
    controls::OptionButton& option = window_->optionButton(from);
    option.setFocus();
    option.setValue(true);
    kind_->settle();
    press(arrow);
    std::string chosen;
    for (const char* name : {"left", "right", "far"})
      if (window_->optionButton(name).value()) chosen += name;
    EXPECT_EQ(window_->focusedControl()->name(), chosen);
    return chosen;
  }
};

TEST_F(WindowKeysContract, ArrowsMoveCyclicallyThroughTheOptionsOfAGroup) {
  for (const KeyCode forward : {controls::kKeyRight, controls::kKeyDown}) {
    EXPECT_EQ(afterArrow("left", forward), "right");
    EXPECT_EQ(afterArrow("right", forward), "far");
    EXPECT_EQ(afterArrow("far", forward), "left");
  }
  for (const KeyCode backward : {controls::kKeyLeft, controls::kKeyUp}) {
    EXPECT_EQ(afterArrow("left", backward), "far");
    EXPECT_EQ(afterArrow("far", backward), "right");
    EXPECT_EQ(afterArrow("right", backward), "left");
  }
}

TEST_F(WindowKeysContract, ArrowsPassOverADisabledOption) {
  window_->optionButton("right").setEnabled(false);
  EXPECT_EQ(afterArrow("left", controls::kKeyRight), "far");
  EXPECT_EQ(afterArrow("far", controls::kKeyLeft), "left");
}

TEST_F(WindowKeysContract, ArrowsLeaveOtherGroupsAlone) {
  afterArrow("far", controls::kKeyRight);
  EXPECT_FALSE(window_->optionButton("yes").value());
  EXPECT_FALSE(window_->optionButton("no").value());
}

TEST_F(WindowKeysContract, OptionIsNotChosenByOtherKeys) {
  EXPECT_EQ(afterArrow("left", controls::kKeyHome), "left");
  EXPECT_EQ(afterArrow("left", controls::kKeyInsert), "left");
}

TEST_F(WindowKeysContract, GroupOfWhichAnOptionIsChosenHasOneTabStop) {
  window_->optionButton("no").setValue(true);
  window_->optionButton("left").setFocus();
  kind_->settle();
  press(controls::kKeyTab);
  EXPECT_EQ(window_->focusedControl()->name(), "no");
  press(controls::kKeyTab);
  EXPECT_EQ(window_->focusedControl()->name(), "tape");
}

TEST_F(WindowKeysContract, TabWithCtrlLeavesTheFocus) {
  kind_->press({.key = controls::kKeyTab, .control = true}, 0);
  EXPECT_TRUE(first_.focused());
  EXPECT_EQ(first_.text(), "");
}

TEST_F(WindowKeysContract, ShortcutNeedsCtrlAlone) {
  window_->menuItem("mnuDeep").onClick = [this] { note("deep"); };
  kind_->press({.key = 'D', .shift = true, .control = true}, 0);
  press('D', 'd');
  EXPECT_EQ(takeLog(), Log{});
  EXPECT_EQ(first_.text(), "d");
}

TEST_F(WindowKeysContract, TellsWhatItTakes) {
  for (const KeyStroke& taken :
       {KeyStroke{.key = controls::kKeyTab}, KeyStroke{.key = controls::kKeyTab, .shift = true},
        KeyStroke{.key = controls::kKeyInsert, .shift = true}, KeyStroke{.key = controls::kKeyF1},
        KeyStroke{.key = 'D', .control = true}, KeyStroke{.key = 'S', .alt = true},
        KeyStroke{.key = 'G', .alt = true}})
    EXPECT_TRUE(window_->takeKey(taken)) << taken.key;
  for (const KeyStroke& left :
       {KeyStroke{.key = 'D'}, KeyStroke{.key = controls::kKeyTab, .control = true},
        KeyStroke{.key = controls::kKeyInsert},
        KeyStroke{.key = controls::kKeyInsert, .shift = true, .control = true},
        KeyStroke{.key = controls::kKeyF1, .shift = true},
        KeyStroke{.key = controls::kKeyF1, .control = true}, KeyStroke{.key = 'E', .control = true},
        KeyStroke{.key = 'Q', .alt = true}, KeyStroke{.key = controls::kKeyEscape},
        KeyStroke{.key = controls::kKeyLeft}})
    EXPECT_FALSE(window_->takeKey(left)) << left.key;
}

}  // namespace contract
