#include "controls/buttons.h"

#include "unit/controls_test.h"

namespace controls {
namespace {

class ButtonsTest : public ControlsTest {
 protected:
  ButtonsTest() {
    for (ClickControl* each : clickable_) each->onClick = noting(each->name() + " click");
  }

  ToggleButton& toggle_ = window_->toggleButton("toggle");
  OptionButton& one_ = window_->optionButton("one");
  OptionButton& two_ = window_->optionButton("two");
  OptionButton& alone_ = window_->optionButton("alone");
  std::array<ClickControl*, 5> clickable_ = {&button_, &toggle_, &one_, &two_, &alone_};
};

TEST_F(ButtonsTest, AreNotClickedWhileDisabledOrHidden) {
  for (ClickControl* each :
       {static_cast<ClickControl*>(&button_), static_cast<ClickControl*>(&toggle_),
        static_cast<ClickControl*>(&two_)}) {
    each->setEnabled(false);
    takeLog();
    each->click();
    EXPECT_EQ(takeLog(), Log{}) << each->name();
    each->setEnabled(true);
    each->setVisible(false);
    takeLog();
    each->click();
    EXPECT_EQ(takeLog(), Log{}) << each->name();
    each->setVisible(true);
    each->click();
    EXPECT_EQ(takeLog().back(), each->name() + " click");
  }
}

TEST_F(ButtonsTest, AreClickedByEnterAndSpaceAlone) {
  for (const KeyAscii character : {int{'7'}, kKeyBackspace, 0, kKeyEscape})
    button_.typeCharacter(character);
  EXPECT_EQ(takeLog(), Log{});
  button_.typeCharacter(kKeyEnter);
  button_.typeCharacter(kKeySpace);
  EXPECT_EQ(takeLog(), (Log{"button click", "button click"}));
  button_.onKeyPress = [](KeyAscii& character) { character = 0; };
  button_.typeCharacter(kKeySpace);
  EXPECT_EQ(takeLog(), Log{});
}

TEST_F(ButtonsTest, ToggleShowsAndRaisesWhatChanges) {
  EXPECT_EQ(toggle_.value(), 0);
  toggle_.setValue(0);
  EXPECT_EQ(takeLog(), Log{});
  toggle_.setValue(1);
  toggle_.setValue(1);
  EXPECT_EQ(takeLog(), (Log{"toggle value", "toggle click"}));
  toggle_.click();
  EXPECT_EQ(toggle_.value(), 0);
  EXPECT_EQ(takeLog(), (Log{"toggle value", "toggle click"}));
}

TEST_F(ButtonsTest, ChosenOptionReleasesTheOthersOfItsGroup) {
  two_.setValue(true);
  EXPECT_EQ(takeLog(), (Log{"two value", "one value", "two click"}));
  EXPECT_TRUE(two_.value());
  EXPECT_FALSE(one_.value());
  EXPECT_TRUE(alone_.value());
  two_.click();
  two_.setValue(true);
  EXPECT_EQ(takeLog(), Log{});
  two_.setValue(false);
  EXPECT_EQ(takeLog(), Log{"two value"});
  EXPECT_FALSE(two_.value());
}

}  // namespace
}  // namespace controls
