#include "controls/menu.h"

#include "unit/controls_test.h"

namespace controls {
namespace {

class MenuTest : public ControlsTest {
 protected:
  MenuTest() {
    for (const auto& item : window_->menuItems()) item->onClick = noting(item->name() + " click");
  }
  MenuItem& item(const char* name) { return window_->menuItem(name); }
};

TEST_F(MenuTest, BeginsAsItIsLaidOut) {
  EXPECT_EQ(item("mnuSave").caption(), "&Save");
  EXPECT_EQ(item("mnuSave").shortcut(), "Ctrl+S");
  EXPECT_TRUE(item("mnuSave").checked());
  EXPECT_FALSE(item("mnuDeep").checked());
  EXPECT_TRUE(item("mnuSave").enabled());
}

TEST_F(MenuTest, LevelsMakeATree) {
  EXPECT_EQ(item("mnuFile").parent(), nullptr);
  EXPECT_EQ(item("mnuEdit").parent(), nullptr);
  EXPECT_EQ(item("mnuDeep").parent(), &item("mnuMore"));
  EXPECT_EQ(item("mnuCut").parent(), &item("mnuEdit"));
  EXPECT_EQ(item("mnuFile").items(), (std::vector<MenuItem*>{&item("mnuSave"), &item("mnuLine"),
                                                             &item("mnuMore"), &item("mnuExit")}));
  EXPECT_EQ(item("mnuMore").items(), std::vector<MenuItem*>{&item("mnuDeep")});
}

TEST_F(MenuTest, ShowsItsProperties) {
  item("mnuSave").setCaption("Saved");
  item("mnuSave").setChecked(false);
  item("mnuSave").setEnabled(false);
  EXPECT_EQ(item("mnuSave").caption(), "Saved");
  EXPECT_FALSE(item("mnuSave").checked());
  EXPECT_FALSE(item("mnuSave").enabled());
  EXPECT_EQ(takeLog(), (Log{"mnuSave caption", "mnuSave checked", "mnuSave enabled"}));
}

TEST_F(MenuTest, ItemIsChosenUnlessItOrAMenuAboveIsDisabled) {
  EXPECT_TRUE(item("mnuDeep").choose());
  EXPECT_EQ(takeLog(), Log{"mnuDeep click"});
  for (const char* disabled : {"mnuDeep", "mnuMore", "mnuFile"}) {
    item(disabled).setEnabled(false);
    takeLog();
    EXPECT_FALSE(item("mnuDeep").choose()) << disabled;
    EXPECT_EQ(takeLog(), Log{}) << disabled;
    item(disabled).setEnabled(true);
  }
}

TEST_F(MenuTest, MenusAndSeparatorsCannotBeChosen) {
  for (const char* name : {"mnuFile", "mnuMore", "mnuLine"})
    EXPECT_FALSE(item(name).choose()) << name;
  EXPECT_EQ(takeLog(), Log{});
}

TEST_F(MenuTest, NothingIsChosenBehindADialog) {
  other_->showModal();
  takeLog();
  EXPECT_FALSE(item("mnuCut").choose());
  EXPECT_EQ(takeLog(), Log{});
}

TEST_F(MenuTest, ShortcutIsItsLetterWithCtrlAlone) {
  const MenuItem& save = item("mnuSave");
  EXPECT_TRUE(save.hasShortcut({.key = 'S', .control = true}));
  EXPECT_FALSE(save.hasShortcut({.key = 'D', .control = true}));
  EXPECT_FALSE(save.hasShortcut({.key = 'S'}));
  EXPECT_FALSE(save.hasShortcut({.key = 'S', .shift = true, .control = true}));
  EXPECT_FALSE(item("mnuCut").hasShortcut({.key = 0, .control = true}));
}

}  // namespace
}  // namespace controls
