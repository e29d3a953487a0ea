#include "controls/desktop.h"

#include "unit/controls_test.h"

namespace controls {
namespace {

class DesktopTest : public ControlsTest {
 protected:
  void showMessage() {
    desktop_.events().runEvent([this] {
      desktop_.showMessage({.text = "Note"});
      desktop_.note("answered");
    });
  }
  void meanwhile(std::function<void()> happens) {
    desktop_.meanwhile.push_back(std::move(happens));
  }
};

TEST_F(DesktopTest, SystemDisablesTheOwnerOfItsDialogItself) {
  showMessage();
  EXPECT_EQ(takeLog(), (Log{"other enabled", "other enabled", "window enabled", "answered"}));
}

TEST_F(DesktopTest, WindowThatCameInFrontOfADialogGetsTheKeyboardAfterIt) {
  meanwhile([this] {
    other_->show();
    takeLog();
  });
  showMessage();
  EXPECT_EQ(takeLog(), (Log{"window enabled", "other enabled", "other to front", "answered"}));
}

TEST_F(DesktopTest, DialogOutlivesItsOwner) {
  other_->show();
  meanwhile([this] {
    const SystemDialog dialog(desktop_);
    EXPECT_EQ(dialog.owner(), other_.get());
    other_.reset();
    EXPECT_EQ(dialog.owner(), nullptr);
    EXPECT_EQ(desktop_.activeWindow(), nullptr);
  });
  takeLog();
  showMessage();
  EXPECT_EQ(takeLog().back(), "answered");
}

TEST_F(DesktopTest, DialogKeepsItsOwnerWhenAnotherWindowGoes) {
  meanwhile([this] {
    const SystemDialog dialog(desktop_);
    other_.reset();
    EXPECT_EQ(dialog.owner(), window_.get());
  });
  showMessage();
}

TEST_F(DesktopTest, GoneWindowIsNeitherInFrontNorADialog) {
  other_->showModal();
  other_.reset();
  EXPECT_TRUE(window_->enabled());
  EXPECT_EQ(desktop_.activeWindow(), nullptr);
  takeLog();
  window_->show();
  EXPECT_EQ(takeLog(), Log{"window to front"});
  EXPECT_EQ(desktop_.activeWindow(), window_.get());
}

TEST_F(DesktopTest, GoneWindowInTheBackgroundLeavesFrontAndDialog) {
  const auto dialog = desktop_.createWindow(kOtherLayout);
  dialog->showModal();
  other_.reset();
  EXPECT_EQ(desktop_.activeWindow(), dialog.get());
  EXPECT_FALSE(window_->enabled());
}

TEST_F(DesktopTest, FrontmostOfTheVisibleWindowsComesNext) {
  const auto third = desktop_.createWindow(kOtherLayout);
  third->show();
  other_->show();
  window_->show();
  window_->hide();
  EXPECT_EQ(desktop_.activeWindow(), other_.get());
  third->hide();
  other_->hide();
  EXPECT_EQ(desktop_.activeWindow(), nullptr);
}

TEST_F(DesktopTest, OnlyTheDialogsOfAClosedWindowAreDismissed) {
  other_->onClose = noting("other closes");
  meanwhile([this] { other_->requestClose(); });
  showMessage();
  EXPECT_EQ(takeLog(),
            (Log{"other enabled", "other closes", "other enabled", "window enabled", "answered"}));
  window_->onClose = noting("window closes");
  meanwhile([this] { window_->requestClose(); });
  showMessage();
  EXPECT_EQ(takeLog(), (Log{"other enabled", "dismiss dialogs", "window closes", "other enabled",
                            "window enabled"}));
}

TEST_F(DesktopTest, EndOfTheSessionDismissesAllDialogs) {
  desktop_.onEndSession = noting("end");
  desktop_.endSession();
  EXPECT_EQ(takeLog(), Log{"end"});
  meanwhile([this] { desktop_.endSession(); });
  showMessage();
  EXPECT_EQ(takeLog(),
            (Log{"other enabled", "end", "dismiss dialogs", "other enabled", "window enabled"}));
}

}  // namespace
}  // namespace controls
