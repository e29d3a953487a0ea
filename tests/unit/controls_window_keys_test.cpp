#include "controls/window.h"

#include "unit/controls_test.h"

// The focus, and the keys that a window takes.
namespace controls {
namespace {

class WindowKeysTest : public ControlsTest {};

TEST_F(WindowKeysTest, TabOrderIsThatOfTheLayout) {
  Log order;
  for (int i = 0; i < 8; ++i) {
    order.push_back(focused());
    window_->moveFocus(true);
  }
  EXPECT_EQ(order, (Log{"box", "same", "button", "cancel", "toggle", "one", "alone", "box"}));
  order.clear();
  for (int i = 0; i < 4; ++i) {
    order.push_back(focused());
    window_->moveFocus(false);
  }
  EXPECT_EQ(order, (Log{"same", "box", "alone", "one"}));
}

TEST_F(WindowKeysTest, FocusIsShownBetweenItsEvents) {
  box_.onLostFocus = noting("lost");
  button_.onGotFocus = noting("got");
  button_.setFocus();
  EXPECT_EQ(takeLog(), (Log{"window focus on button", "lost", "got"}));
  button_.setFocus();
  window_->control("label").setFocus();
  EXPECT_EQ(takeLog(), Log{});
}

TEST_F(WindowKeysTest, FocusOfAWindowInTheBackgroundIsOnlyRemembered) {
  other_->control("box").onLostFocus = noting("lost");
  other_->button("button").onGotFocus = noting("got");
  other_->control("box").setFocus();
  other_->button("button").setFocus();
  EXPECT_EQ(takeLog(), Log{});
  EXPECT_EQ(other_->focusedControl(), &other_->button("button"));
  other_->show();
  EXPECT_EQ(takeLog(), (Log{"other visible", "other to front", "got"}));
}

TEST_F(WindowKeysTest, HandlerThatMovesTheFocusHasTheLastWord) {
  box_.onLostFocus = [this] { window_->control("toggle").setFocus(); };
  button_.onGotFocus = noting("button got");
  window_->control("toggle").onGotFocus = noting("toggle got");
  button_.setFocus();
  EXPECT_EQ(takeLog(), (Log{"window focus on button", "window focus on toggle", "toggle got"}));
  EXPECT_EQ(focused(), "toggle");
}

TEST_F(WindowKeysTest, EscapePressesTheCancelButton) {
  window_->button("cancel").onClick = noting("cancel");
  EXPECT_TRUE(window_->takeKey({.key = kKeyEscape}));
  EXPECT_EQ(takeLog(), Log{"cancel"});
  EXPECT_EQ(focused(), "box");
}

TEST_F(WindowKeysTest, ArrowIsTakenFromAnOptionAlone) {
  for (const KeyCode key : {kKeyLeft, kKeyUp, kKeyRight, kKeyDown})
    EXPECT_FALSE(window_->takeKey({.key = key}));
  window_->control("one").setFocus();
  for (const KeyCode key : {kKeyLeft, kKeyUp, kKeyRight, kKeyDown})
    EXPECT_TRUE(window_->takeKey({.key = key}));
  for (const KeyCode key : {kKeyHome, kKeyEnd, kKeyDown + 1})
    EXPECT_FALSE(window_->takeKey({.key = key}));
}

TEST_F(WindowKeysTest, AccessKeyOfALabelFocusesTheNextControlThatCanHaveIt) {
  button_.setFocus();
  EXPECT_TRUE(window_->takeKey({.key = 'b', .alt = true}));
  EXPECT_EQ(focused(), "box");
  button_.setFocus();
  box_.setEnabled(false);
  EXPECT_TRUE(window_->takeKey({.key = 'B', .alt = true}));
  EXPECT_EQ(focused(), "same");
  EXPECT_TRUE(window_->takeKey({.key = 'E', .alt = true}));
  EXPECT_EQ(focused(), "same");
}

TEST_F(WindowKeysTest, SimulatedKeyTakesTheWayOfARealOne) {
  box_.onKeyUp = [this](KeyCode key) { desktop_.note("up " + std::to_string(key)); };
  window_->sendKey('7', '7');
  EXPECT_EQ(box_.text(), "7");
  EXPECT_EQ(takeLog(), Log{"up 55"});
  window_->onHelp = noting("help");
  window_->sendKey(kKeyF1, 0);
  EXPECT_EQ(takeLog(), (Log{"help", "up 112"}));
  // No control has the focus, and none hears of the key.
  other_->sendKey('7', '7');
  EXPECT_EQ(takeLog(), Log{});
}

}  // namespace
}  // namespace controls
