#include "controls/control.h"

#include "unit/controls_test.h"

namespace controls {
namespace {

class ControlTest : public ControlsTest {};

TEST_F(ControlTest, BeginsAsItIsLaidOut) {
  EXPECT_EQ(button_.name(), "button");
  EXPECT_EQ(button_.caption(), "&Go");
  EXPECT_EQ(button_.kind(), ControlKind::Button);
  EXPECT_EQ(window_->control("frame").bounds(), (Rect{0, 900, 900, 900}));
  EXPECT_EQ(box_.backColor(), Color::window());
  EXPECT_EQ(button_.backColor(), Color::buttonFace());
  EXPECT_EQ(window_->control("label").backColor(), Color::buttonFace());
  EXPECT_TRUE(button_.visible());
  EXPECT_TRUE(button_.enabled());
}

TEST_F(ControlTest, CaptionIsShown) {
  button_.setCaption("&Stop");
  EXPECT_EQ(button_.caption(), "&Stop");
  EXPECT_EQ(takeLog(), Log{"button caption"});
}

TEST_F(ControlTest, VisibilityIsShownWhenItChanges) {
  for (const bool visible : {false, true}) {
    button_.setVisible(visible);
    button_.setVisible(visible);
    EXPECT_EQ(button_.visible(), visible);
    EXPECT_EQ(takeLog(), Log{"button visible"});
  }
}

TEST_F(ControlTest, EnablingIsShownWhenItChanges) {
  for (const bool enabled : {false, true}) {
    button_.setEnabled(enabled);
    button_.setEnabled(enabled);
    EXPECT_EQ(button_.enabled(), enabled);
    EXPECT_EQ(takeLog(), Log{"button enabled"});
  }
}

TEST_F(ControlTest, BoundsAreShownWhenTheyChange) {
  button_.setBounds({1, 2, 30, 40});
  button_.setBounds({1, 2, 30, 40});
  EXPECT_EQ(takeLog(), Log{"button bounds"});
  button_.setWidth(50);
  EXPECT_EQ(button_.bounds(), (Rect{1, 2, 50, 40}));
  button_.setHeight(60);
  EXPECT_EQ(button_.bounds(), (Rect{1, 2, 50, 60}));
  EXPECT_EQ(takeLog(), (Log{"button bounds", "button bounds"}));
}

TEST_F(ControlTest, ColorIsShownWhenItChanges) {
  box_.setBackColor(Color::rgb(0xFF00));
  box_.setBackColor(Color::rgb(0xFF00));
  EXPECT_EQ(box_.backColor(), Color::rgb(0xFF00));
  EXPECT_EQ(takeLog(), Log{"box color"});
}

TEST_F(ControlTest, AccessKeyFollowsTheAmpersand) {
  const auto accessKey = [this](std::string_view caption) {
    button_.setCaption(caption);
    return button_.accessKey();
  };
  EXPECT_EQ(accessKey("&Go"), 'G');
  EXPECT_EQ(accessKey("sto&p"), 'P');
  EXPECT_EQ(accessKey("&7"), '7');
  EXPECT_EQ(accessKey("Go"), 0);
  EXPECT_EQ(accessKey("Go&"), 0);
  EXPECT_EQ(accessKey("&"), 0);
  EXPECT_EQ(accessKey(""), 0);
}

TEST_F(ControlTest, LabelsFramesAndWhatIsHiddenOrDisabledTakeNoFocus) {
  EXPECT_FALSE(window_->control("label").takesFocus());
  EXPECT_FALSE(window_->control("frame").takesFocus());
  for (const char* name : {"box", "button", "toggle", "one"}) {
    Control& control = window_->control(name);
    EXPECT_TRUE(control.takesFocus()) << name;
    control.setVisible(false);
    EXPECT_FALSE(control.takesFocus()) << name;
    control.setVisible(true);
    control.setEnabled(false);
    EXPECT_FALSE(control.takesFocus()) << name;
  }
}

TEST_F(ControlTest, HasTheFocusOnlyInTheWindowInFront) {
  EXPECT_TRUE(box_.focused());
  EXPECT_FALSE(button_.focused());
  other_->show();
  EXPECT_FALSE(box_.focused());
  EXPECT_TRUE(other_->control("box").focused());
}

TEST_F(ControlTest, PassesTheFocusOnBeforeItIsShownAsDisabledOrHidden) {
  box_.setEnabled(false);
  EXPECT_EQ(takeLog(), (Log{"window focus on same", "box enabled"}));
  window_->control("same").setVisible(false);
  EXPECT_EQ(takeLog(), (Log{"window focus on button", "same visible"}));
  window_->control("cancel").setEnabled(false);
  EXPECT_EQ(takeLog(), Log{"cancel enabled"});
}

TEST_F(ControlTest, KeepsTheFocusThatNoOtherCanTake) {
  for (const auto& each : window_->controls())
    if (each.get() != &box_) each->setEnabled(false);
  box_.setEnabled(false);
  EXPECT_EQ(focused(), "box");
  button_.setEnabled(true);
  box_.setEnabled(true);
  EXPECT_EQ(focused(), "box");
}

TEST_F(ControlTest, RaisesTheEventsOfKeysAndMouse) {
  Control& label = window_->control("label");
  label.onKeyPress = [this](KeyAscii& character) {
    desktop_.note("press " + std::to_string(character));
    character = '8';
  };
  label.onKeyUp = [this](KeyCode key) { desktop_.note("up " + std::to_string(key)); };
  label.onDblClick = noting("double click");
  EXPECT_EQ(label.keyPress('7'), '8');
  label.typeCharacter('9');
  label.keyUp(kKeyHome);
  label.doubleClick();
  EXPECT_EQ(takeLog(), (Log{"press 55", "press 57", "up 36", "double click"}));
}

}  // namespace
}  // namespace controls
