#include "controls/window.h"

#include "unit/controls_test.h"

namespace controls {
namespace {

class WindowTest : public ControlsTest {
 protected:
  recording::Window& recorded() { return dynamic_cast<recording::Window&>(*window_); }
};

TEST_F(WindowTest, BeginsAsItIsLaidOut) {
  EXPECT_EQ(other_->name(), "other");
  EXPECT_EQ(other_->caption(), "Other");
  EXPECT_EQ(other_->bounds(), kOtherLayout.place);
  EXPECT_EQ(other_->layout().caption, "Other");
  EXPECT_EQ(&window_->desktop(), &desktop_);
  EXPECT_EQ(other_->state(), WindowState::Normal);
  EXPECT_FALSE(other_->visible());
  EXPECT_FALSE(other_->onTop());
  EXPECT_EQ(other_->focusedControl(), nullptr);
}

TEST_F(WindowTest, FindsControlsAndMenuItemsByName) {
  EXPECT_EQ(window_->findControl("label")->name(), "label");
  EXPECT_EQ(window_->findControl("mnuSave"), nullptr);
  EXPECT_EQ(window_->findMenuItem("mnuSave")->name(), "mnuSave");
  EXPECT_EQ(window_->findMenuItem("label"), nullptr);
}

TEST_F(WindowTest, CaptionStateAndTopmostAreShown) {
  window_->setCaption("Else");
  window_->setState(WindowState::Normal);
  window_->setState(WindowState::Minimized);
  window_->setState(WindowState::Minimized);
  window_->setOnTop(false);
  window_->setOnTop(true);
  EXPECT_EQ(window_->caption(), "Else");
  EXPECT_EQ(window_->state(), WindowState::Minimized);
  EXPECT_TRUE(window_->onTop());
  EXPECT_EQ(takeLog(), (Log{"window caption", "window state", "window on top", "window on top"}));
}

TEST_F(WindowTest, StateSetByTheUserIsKnownAndNotShown) {
  recorded().noteState(WindowState::Maximized);
  EXPECT_EQ(window_->state(), WindowState::Maximized);
  EXPECT_EQ(takeLog(), Log{});
}

TEST_F(WindowTest, BoundsAreShownAndResizeIsRaisedWhenTheyChange) {
  window_->onResize = noting("resize");
  window_->setBounds(kTestLayout.place);
  EXPECT_EQ(takeLog(), Log{});
  window_->setLeft(301);
  window_->setTop(402);
  EXPECT_EQ(takeLog(), (Log{"window bounds", "window bounds"}));
  window_->setWidth(3003);
  window_->setHeight(2004);
  EXPECT_EQ(takeLog(), (Log{"window bounds", "resize", "window bounds", "resize"}));
  EXPECT_EQ(window_->bounds(), (Rect{301, 402, 3003, 2004}));
}

TEST_F(WindowTest, BoundsSetByTheUserRaiseResizeWhenTheSizeChanges) {
  window_->onResize = noting("resize");
  recorded().noteBounds(kTestLayout.place);
  recorded().noteBounds({0, 0, 3000, 2000});
  EXPECT_EQ(takeLog(), Log{});
  recorded().noteBounds({0, 0, 3001, 2000});
  recorded().noteBounds({0, 0, 3001, 2001});
  EXPECT_EQ(takeLog(), (Log{"resize", "resize"}));
  EXPECT_EQ(window_->bounds(), (Rect{0, 0, 3001, 2001}));
}

TEST_F(WindowTest, IsNeverSmallerThanItsFrame) {
  window_->setBounds({0, 0, 0, 0});
  EXPECT_EQ(window_->bounds(), (Rect{0, 0, 120, 690}));
  other_->setBounds({0, 0, -5, -5});
  EXPECT_EQ(other_->bounds(), (Rect{0, 0, 120, 405}));
}

TEST_F(WindowTest, ResizeIsRaisedWhenItIsFirstShownAndNotBefore) {
  other_->onResize = noting("resize");
  other_->setWidth(4000);
  EXPECT_EQ(takeLog(), Log{"other bounds"});
  other_->show();
  EXPECT_EQ(takeLog(), (Log{"resize", "other visible", "other to front"}));
  other_->show();
  EXPECT_EQ(takeLog(), Log{"other to front"});
}

TEST_F(WindowTest, FocusAndActivationFollowTheWindowInFront) {
  box_.onLostFocus = noting("window lost");
  box_.onGotFocus = noting("window got");
  other_->control("box").onLostFocus = noting("other lost");
  other_->control("box").onGotFocus = noting("other got");
  window_->onActivate = noting("window active");
  other_->onActivate = noting("other active");
  other_->show();
  EXPECT_EQ(takeLog(),
            (Log{"other visible", "other to front", "window lost", "other got", "other active"}));
  EXPECT_EQ(desktop_.activeWindow(), other_.get());
  other_->hide();
  EXPECT_EQ(takeLog(), (Log{"window to front", "window got", "window active", "other visible"}));
  EXPECT_EQ(desktop_.activeWindow(), window_.get());
  window_->show();
  EXPECT_EQ(takeLog(), Log{"window to front"});
}

TEST_F(WindowTest, WithNothingToFocusComesToTheFrontToo) {
  const auto bare = desktop_.createWindow(
      {.name = "bare", .caption = "Bare", .place = kAnyPlace, .controls = {}});
  bare->onActivate = noting("bare active");
  bare->show();
  other_->show();
  EXPECT_EQ(takeLog(), (Log{"bare visible", "bare to front", "bare active", "other visible",
                            "other to front"}));
}

TEST_F(WindowTest, FirstControlThatCanHaveTheFocusGetsItInFront) {
  for (const auto& each : other_->controls()) each->setEnabled(false);
  other_->show();
  EXPECT_EQ(other_->focusedControl(), nullptr);
  other_->control("box").onGotFocus = noting("got");
  other_->control("box").setEnabled(true);
  takeLog();
  other_->control("box").setFocus();
  EXPECT_EQ(takeLog(), (Log{"other focus on box", "got"}));
}

TEST_F(WindowTest, HidingABackgroundOrHiddenWindowLeavesTheOneInFront) {
  other_->hide();
  EXPECT_EQ(takeLog(), Log{});
  other_->show();
  takeLog();
  window_->hide();
  EXPECT_EQ(takeLog(), Log{"window visible"});
  EXPECT_EQ(desktop_.activeWindow(), other_.get());
  other_->hide();
  EXPECT_EQ(takeLog(), Log{"other visible"});
  EXPECT_EQ(desktop_.activeWindow(), nullptr);
}

TEST_F(WindowTest, DialogTakesInputAloneUntilItIsHidden) {
  EXPECT_TRUE(window_->enabled());
  other_->showModal();
  EXPECT_EQ(takeLog(), (Log{"other enabled", "window enabled", "other visible", "other to front"}));
  EXPECT_FALSE(window_->enabled());
  EXPECT_TRUE(other_->enabled());
  other_->hide();
  EXPECT_EQ(takeLog(),
            (Log{"window enabled", "other enabled", "window to front", "other visible"}));
  EXPECT_TRUE(window_->enabled());
}

TEST_F(WindowTest, HidingAnotherWindowLeavesTheDialog) {
  other_->showModal();
  window_->hide();
  EXPECT_FALSE(window_->enabled());
}

TEST_F(WindowTest, CloseRequestIsLeftToItsHandler) {
  other_->onClose = noting("other closes");
  other_->showModal();
  takeLog();
  window_->requestClose();
  EXPECT_EQ(takeLog(), Log{});
  window_->onClose = noting("window closes");
  window_->requestClose();
  EXPECT_EQ(takeLog(), (Log{"other closes", "window closes"}));
  other_->requestClose();
  EXPECT_EQ(takeLog(), Log{"other closes"});
}

}  // namespace
}  // namespace controls
