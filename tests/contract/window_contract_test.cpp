#include "contract/contract_test.h"

namespace contract {

using controls::kKeyTab;

class WindowContract : public ContractTest {
 protected:
  void logFocus(controls::Control& control) {
    control.onGotFocus = [this, &control] { note("got " + control.name()); };
    control.onLostFocus = [this, &control] { note("lost " + control.name()); };
  }
};

TEST_F(WindowContract, FirstControlInTabOrderHasTheFocus) {
  EXPECT_TRUE(first_.focused());
  EXPECT_EQ(window_->focusedControl(), &first_);
}

TEST_F(WindowContract, FocusLeavesOneControlBeforeItReachesTheNext) {
  logFocus(first_);
  logFocus(second_);
  focus(second_);
  EXPECT_EQ(takeLog(), (Log{"lost first", "got second"}));
  focus(second_);
  EXPECT_EQ(takeLog(), Log{});
}

TEST_F(WindowContract, LabelsAndDisabledControlsTakeNoFocus) {
  window_->control("label").setFocus();
  EXPECT_TRUE(first_.focused());
  second_.setEnabled(false);
  focus(second_);
  EXPECT_TRUE(first_.focused());
}

TEST_F(WindowContract, FocusMovesOnWhenItsControlIsDisabledOrHidden) {
  first_.setEnabled(false);
  kind_->settle();
  EXPECT_TRUE(second_.focused());
  second_.setVisible(false);
  kind_->settle();
  EXPECT_TRUE(button_.focused());
}

TEST_F(WindowContract, AnotherWindowTakesTheFocusAndGivesItBack) {
  logFocus(first_);
  const auto other = kind_->desktop().createWindow(plainLayout());
  logFocus(other->textBox("first"));
  show(*other);
  EXPECT_EQ(takeLog(), (Log{"lost first", "got first"}));
  EXPECT_FALSE(first_.focused());
  show(*window_);
  EXPECT_EQ(takeLog(), (Log{"lost first", "got first"}));
  EXPECT_TRUE(first_.focused());
}

TEST_F(WindowContract, ControlOfABackgroundWindowGetsTheFocusLater) {
  const auto other = kind_->desktop().createWindow(plainLayout());
  show(*other);
  focus(second_);
  EXPECT_TRUE(other->textBox("first").focused());
  show(*window_);
  EXPECT_TRUE(second_.focused());
}

TEST_F(WindowContract, TabMovesThroughTheControlsAndBack) {
  Log order;
  for (int i = 0; i < 9; ++i) {
    order.push_back(window_->focusedControl()->name());
    press(kKeyTab);
  }
  // Of the options only the chosen one, or all while none is.
  EXPECT_EQ(order,
            (Log{"first", "second", "button", "toggle", "left", "yes", "no", "tape", "first"}));
  kind_->press({.key = kKeyTab, .shift = true}, 0);
  EXPECT_TRUE(first_.focused());
  kind_->press({.key = kKeyTab, .shift = true}, 0);
  EXPECT_TRUE(tape_.focused());
}

TEST_F(WindowContract, KeyUpGoesToTheControlFocusedByThen) {
  first_.onKeyPress = [this](controls::KeyAscii& key) {
    key = 0;
    second_.setFocus();
  };
  first_.onKeyUp = [this](controls::KeyCode) { note("up in first"); };
  second_.onKeyUp = [this](controls::KeyCode key) { note("up " + std::to_string(key)); };
  type("7");
  EXPECT_EQ(takeLog(), Log{"up 55"});
}

TEST_F(WindowContract, SimulatedKeystrokeWaitsForTheEndOfTheHandler) {
  first_.onChange = [this](controls::ChangedBy) { note("change"); };
  first_.onKeyUp = [this](controls::KeyCode key) { note("up " + std::to_string(key)); };
  button_.onClick = [this] {
    first_.setFocus();
    window_->sendKey('5', '5');
    note("clicked with " + first_.text());
  };
  kind_->click(button_);
  EXPECT_EQ(takeLog(), (Log{"clicked with ", "change", "up 53"}));
  EXPECT_EQ(first_.text(), "5");
}

TEST_F(WindowContract, ClickGivesAButtonTheFocusFirst) {
  logFocus(button_);
  button_.onClick = [this] { note("click"); };
  kind_->click(button_);
  EXPECT_EQ(takeLog(), (Log{"got button", "click"}));
  focus(first_);
  takeLog();
  button_.click();
  EXPECT_EQ(takeLog(), Log{"click"});
  EXPECT_TRUE(first_.focused());
}

TEST_F(WindowContract, EnterAndSpacePressTheButtonThatHasTheFocus) {
  button_.onClick = [this] { note("click"); };
  focus(button_);
  press(controls::kKeyEnter, 13);
  press(controls::kKeySpace, ' ');
  EXPECT_EQ(takeLog(), (Log{"click", "click"}));
}

TEST_F(WindowContract, DisabledOrHiddenButtonIsNotClicked) {
  button_.onClick = [this] { note("click"); };
  button_.setEnabled(false);
  button_.click();
  button_.setEnabled(true);
  button_.setVisible(false);
  button_.click();
  EXPECT_EQ(takeLog(), Log{});
}

TEST_F(WindowContract, ToggleRaisesClickForUserAndProgram) {
  toggle_.onClick = [this] { note("now " + std::to_string(toggle_.value())); };
  kind_->click(toggle_);
  toggle_.setValue(1);
  toggle_.setValue(0);
  press(controls::kKeySpace, ' ');
  EXPECT_EQ(takeLog(), (Log{"now 1", "now 0", "now 1"}));
}

TEST_F(WindowContract, OneOptionPerGroupIsChosen) {
  controls::OptionButton& left = window_->optionButton("left");
  controls::OptionButton& right = window_->optionButton("right");
  left.onClick = [this] { note("left"); };
  right.onClick = [this] { note("right"); };
  kind_->click(right);
  EXPECT_FALSE(left.value());
  EXPECT_TRUE(right.value());
  kind_->click(right);
  press(controls::kKeyLeft);
  EXPECT_TRUE(left.focused());
  EXPECT_TRUE(left.value());
  EXPECT_EQ(takeLog(), (Log{"right", "left"}));
}

TEST_F(WindowContract, ShortcutTakesPrecedenceOverTheControl) {
  first_.onKeyPress = [this](controls::KeyAscii&) { note("press"); };
  first_.onKeyUp = [this](controls::KeyCode key) { note("up " + std::to_string(key)); };
  window_->menuItem("mnuCopy").onClick = [this] { note("copy"); };
  pressControl('C');
  EXPECT_EQ(takeLog(), (Log{"copy", "up 67"}));
}

TEST_F(WindowContract, ShortcutOfADisabledMenuDoesNothing) {
  window_->menuItem("mnuDeep").onClick = [this] { note("deep"); };
  pressControl('D');
  window_->menuItem("mnuMore").setEnabled(false);
  pressControl('D');
  EXPECT_FALSE(window_->menuItem("mnuDeep").canBeChosen());
  EXPECT_EQ(takeLog(), Log{"deep"});
  EXPECT_EQ(first_.text(), "");
}

TEST_F(WindowContract, AccessKeyClicksAButtonOrFocusesTheFieldOfALabel) {
  button_.onClick = [this] { note("click"); };
  kind_->press({.key = 'G', .alt = true}, 0);
  EXPECT_EQ(takeLog(), Log{"click"});
  EXPECT_TRUE(button_.focused());
  kind_->press({.key = 'S', .alt = true}, 0);
  EXPECT_TRUE(second_.focused());
}

TEST_F(WindowContract, AccessKeyPassesOverWhatIsDisabledOrHidden) {
  button_.onClick = [this] { note("click"); };
  button_.setEnabled(false);
  kind_->press({.key = 'G', .alt = true}, 0);
  button_.setEnabled(true);
  button_.setVisible(false);
  kind_->press({.key = 'G', .alt = true}, 0);
  EXPECT_TRUE(first_.focused());
  second_.setEnabled(false);
  kind_->press({.key = 'S', .alt = true}, 0);
  EXPECT_EQ(window_->focusedControl(), &toggle_);
  window_->control("label").setVisible(false);
  kind_->press({.key = 'S', .alt = true}, 0);
  EXPECT_EQ(window_->focusedControl(), &toggle_);
  EXPECT_EQ(takeLog(), Log{});
}

TEST_F(WindowContract, F1AsksTheWindowForHelp) {
  window_->onHelp = [this] { note("help"); };
  first_.onKeyPress = [this](controls::KeyAscii&) { note("press"); };
  first_.onKeyUp = [this](controls::KeyCode key) { note("up " + std::to_string(key)); };
  press(controls::kKeyF1);
  EXPECT_EQ(takeLog(), (Log{"help", "up 112"}));
  kind_->press({.key = controls::kKeyF1, .control = true}, 0);
  kind_->press({.key = controls::kKeyF1, .shift = true}, 0);
  EXPECT_EQ(takeLog(), (Log{"up 112", "up 112"}));
}

TEST_F(WindowContract, ShiftInsertOnAButtonPastesNothing) {
  kind_->desktop().setClipboardText("23");
  focus(button_);
  kind_->press({.key = controls::kKeyInsert, .shift = true}, 0);
  EXPECT_EQ(first_.text(), "");
  EXPECT_TRUE(button_.focused());
}

TEST_F(WindowContract, KeyPressMayHandTheCharacterToAnotherControl) {
  button_.onKeyPress = [this](controls::KeyAscii& key) {
    first_.setFocus();
    first_.typeCharacter(std::exchange(key, 0));
  };
  button_.onKeyUp = [this](controls::KeyCode) { note("up at the button"); };
  first_.onKeyUp = [this](controls::KeyCode) { note("up at the box"); };
  focus(button_);
  type("7.");
  EXPECT_EQ(first_.text(), "7.");
  EXPECT_TRUE(first_.focused());
  EXPECT_EQ(takeLog(), (Log{"up at the box", "up at the box"}));
}

// Letters whose lowest eight bits are those of "G" and "S".
TEST_F(WindowContract, NonAsciiLettersAreNoAccessKeys) {
  button_.onClick = [this] { note("click"); };
  for (const controls::KeyCode character : {0x0147, 0x0647, 0x0153, 0x10047, -0xB9, 0})
    EXPECT_FALSE(window_->takeKey({.key = character, .alt = true})) << character;
  EXPECT_EQ(takeLog(), Log{});
  EXPECT_TRUE(first_.focused());
}

TEST_F(WindowContract, WindowWithoutMenuLeavesTheClipboardKeysToTheBox) {
  const auto plain = kind_->desktop().createWindow(plainLayout());
  show(*plain);
  controls::TextBox& box = plain->textBox("first");
  box.setText("1234");
  box.select(0, 2);
  pressControl('C');
  EXPECT_EQ(kind_->desktop().clipboardText().text, "12");
  pressControl('X');
  EXPECT_EQ(box.text(), "34");
  pressControl('Z');
  EXPECT_EQ(box.text(), "1234");
  box.moveCaretToEnd();
  pressControl('V');
  EXPECT_EQ(box.text(), "123412");
  box.onKeyPress = [](controls::KeyAscii& key) { key = 0; };
  pressControl('V');
  EXPECT_EQ(box.text(), "123412");
}

TEST_F(WindowContract, ResizeIsRaisedOnFirstShowAndOnRealChanges) {
  const auto other = kind_->desktop().createWindow(testLayout());
  other->onResize = [this] { note("resize"); };
  other->setWidth(7000);
  EXPECT_EQ(takeLog(), Log{});
  show(*other);
  EXPECT_EQ(takeLog(), Log{"resize"});
  other->setLeft(600);
  other->setWidth(7000);
  kind_->settle();
  EXPECT_EQ(takeLog(), Log{});
  other->setHeight(4100);
  kind_->settle();
  EXPECT_EQ(takeLog(), Log{"resize"});
  EXPECT_EQ(other->bounds(), (controls::Rect{600, 300, 7000, 4100}));
}

TEST_F(WindowContract, TopmostSwitchMovesTheWindow) {
  const controls::Rect before = window_->bounds();
  for (const bool onTop : {true, false}) {
    window_->setOnTop(onTop);
    window_->setBounds(before);
    kind_->settle();
    EXPECT_EQ(window_->onTop(), onTop);
    EXPECT_EQ(window_->bounds(), before);
  }
}

TEST_F(WindowContract, RestoringAMaximizedWindowBringsItBack) {
  const controls::Rect before = window_->bounds();
  window_->setState(controls::WindowState::Maximized);
  kind_->settle();
  EXPECT_EQ(window_->state(), controls::WindowState::Maximized);
  EXPECT_GT(window_->bounds().width, before.width);
  window_->setState(controls::WindowState::Normal);
  kind_->settle();
  EXPECT_EQ(window_->bounds(), before);
}

TEST_F(WindowContract, WindowThatIsMaximizedOrRestoredComesToTheFront) {
  using controls::WindowState;
  const auto other = kind_->desktop().createWindow(plainLayout());
  logFocus(first_);
  logFocus(other->textBox("first"));
  for (const auto state : {WindowState::Maximized, WindowState::Normal}) {
    show(*other);
    takeLog();
    window_->setState(state);
    kind_->settle();
    EXPECT_TRUE(first_.focused());
    EXPECT_EQ(takeLog(), (Log{"lost first", "got first"}));
  }
  other->show();
  window_->setState(WindowState::Normal);
  kind_->settle();
  EXPECT_TRUE(other->textBox("first").focused());
}

TEST_F(WindowContract, DialogTakesTheKeysUntilItIsHidden) {
  window_->onClose = [this] { note("close"); };
  window_->menuItem("mnuCopy").onClick = [this] { note("copy"); };
  const auto dialog = kind_->desktop().createWindow(plainLayout());
  dialog->showModal();
  kind_->settle();
  EXPECT_FALSE(window_->enabled());
  EXPECT_TRUE(dialog->enabled());
  type("7");
  EXPECT_EQ(first_.text(), "");
  EXPECT_EQ(dialog->textBox("first").text(), "7");
  EXPECT_FALSE(window_->menuItem("mnuCopy").choose());
  EXPECT_EQ(takeLog(), Log{});
  dialog->hide();
  kind_->settle();
  EXPECT_TRUE(window_->enabled());
  type("7");
  EXPECT_EQ(first_.text(), "7");
}

TEST_F(WindowContract, ClosingAWindowClosesTheDialogInFrontFirst) {
  const auto dialog = kind_->desktop().createWindow(plainLayout());
  window_->onClose = [this] { note("close window"); };
  dialog->onClose = [&] {
    note("close dialog");
    dialog->hide();
  };
  dialog->showModal();
  kind_->settle();
  window_->requestClose();
  EXPECT_EQ(takeLog(), (Log{"close dialog", "close window"}));
}

TEST_F(WindowContract, EndOfTheSessionRunsItsHandler) {
  kind_->desktop().onEndSession = [this] { note("end"); };
  kind_->desktop().endSession();
  EXPECT_EQ(takeLog(), Log{"end"});
}

TEST_F(WindowContract, HidingAWindowActivatesTheOneBehind) {
  const auto other = kind_->desktop().createWindow(plainLayout());
  show(*other);
  other->hide();
  kind_->settle();
  EXPECT_TRUE(first_.focused());
  type("7");
  EXPECT_EQ(first_.text(), "7");
}

}  // namespace contract
