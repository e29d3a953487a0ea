#include "appearance/appearance_test_base.h"

// The screen changes while the window is maximized or minimized.
namespace appearance {
namespace {

class MaximizedTest : public AppearanceTest {
 protected:
  void SetUp() override {
    AppearanceTest::SetUp();
    tell("move frmCalc 1500 900");
    window_ = window("frmCalc");
    normal_ = placeOf(window_);
    client_ = clientSize(window_);
    width_ = tell("get frmCalc Width")["value"];
    height_ = tell("get frmCalc Height")["value"];
  }

  /// Returns the area that the window then fills.
  RECT maximize() {
    tell("maximize frmCalc");
    return placeOf(window_);
  }

  /// The system moves a window that fills its screen to another screen, or makes it as large as its
  /// screen has become.
  void fillScreen(const RECT& place) {
    SetWindowPos(window_, nullptr, place.left, place.top, place.right - place.left,
                 place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
  }

  /// Sets the position to which the system restores the window.
  void setNormalPlace(const RECT& place) {
    WINDOWPLACEMENT placement = {};
    placement.length = sizeof placement;
    GetWindowPlacement(window_, &placement);
    placement.rcNormalPosition = place;
    SetWindowPlacement(window_, &placement);
  }

  void expectFills(const RECT& place) {
    EXPECT_TRUE(IsZoomed(window_));
    EXPECT_EQ(tell("get frmCalc WindowState")["value"], "maximized");
    const RECT seen = placeOf(window_);
    EXPECT_TRUE(EqualRect(&seen, &place))
        << seen.right - seen.left << " by " << seen.bottom - seen.top << " pixels at " << seen.left
        << ", " << seen.top;
  }

  void restoreTo(LONG left, LONG top, int dpi) {
    tell("restore frmCalc");
    expectNormal(left, top, dpi);
  }

  void expectNormal(LONG left, LONG top, int dpi) {
    EXPECT_EQ(tell("get frmCalc WindowState")["value"], "normal");
    EXPECT_EQ(placeOf(window_).left, left);
    EXPECT_EQ(placeOf(window_).top, top);
    EXPECT_NEAR(clientSize(window_).cx, MulDiv(client_.cx, dpi, 96), 1);
    EXPECT_NEAR(clientSize(window_).cy, MulDiv(client_.cy, dpi, 96), 1);
    EXPECT_EQ(tell("get frmCalc Width")["value"], width_);
    EXPECT_EQ(tell("get frmCalc Height")["value"], height_);
  }

  HWND window_ = nullptr;
  RECT normal_ = {};
  SIZE client_ = {};
  int width_ = 0;
  int height_ = 0;
};

TEST_F(MaximizedTest, FillsAScreenWhoseScalingChanges) {
  const RECT screen = maximize();
  setResolution(window_, 144, screen);
  expectFills(screen);
  restoreTo(normal_.left, normal_.top, 144);
}

TEST_F(MaximizedTest, IsRestoredExactlyAfterTheScalingIs) {
  const RECT screen = maximize();
  setResolution(window_, 144, screen);
  setResolution(window_, 96, screen);
  expectFills(screen);
  restoreTo(normal_.left, normal_.top, 96);
  EXPECT_EQ(tell("get frmCalc Left")["value"], 1500);
  EXPECT_EQ(tell("get frmCalc Top")["value"], 900);
}

TEST_F(MaximizedTest, FillsAnotherScreenWhenMovedThere) {
  maximize();
  const RECT other = {300, 100, 1100, 700};
  fillScreen(other);
  setResolution(window_, 144, other);
  expectFills(other);
  const RECT there = {400, 150, 400 + normal_.right - normal_.left,
                      150 + normal_.bottom - normal_.top};
  setNormalPlace(there);
  expectFills(other);
  restoreTo(there.left, there.top, 144);
}

TEST_F(MaximizedTest, KeepsItsExactSizeWhenItsScreenIsUnplugged) {
  tell("resize frmCalc 7001 4001");
  client_ = clientSize(window_);
  width_ = 7001;
  height_ = 4001;
  normal_ = placeOf(window_);
  maximize();
  const RECT smaller = {0, 0, 808, 608};
  fillScreen(smaller);
  RECT there = normal_;
  OffsetRect(&there, 30, 20);
  setNormalPlace(there);
  expectFills(smaller);
  restoreTo(there.left, there.top, 96);
}

TEST_F(MaximizedTest, MinimizedItIsRestoredInTheSizeForItsScreen) {
  tell("minimize frmCalc");
  const RECT icon = placeOf(window_);
  setResolution(window_, 144, icon);
  restoreTo(normal_.left, normal_.top, 144);
}

TEST_F(MaximizedTest, MinimizedMeanwhileItFillsItsScreenAgain) {
  const RECT screen = maximize();
  tell("minimize frmCalc");
  setResolution(window_, 144, placeOf(window_));
  ShowWindow(window_, SW_RESTORE);
  expectFills(screen);
  restoreTo(normal_.left, normal_.top, 144);
}

TEST_F(MaximizedTest, ChangeOfTheScreenDoesNotMoveTheWindow) {
  SendMessageW(window_, WM_DISPLAYCHANGE, 32, MAKELPARAM(800, 600));
  expectNormal(normal_.left, normal_.top, 96);
  const RECT screen = maximize();
  SendMessageW(window_, WM_DISPLAYCHANGE, 32, MAKELPARAM(800, 600));
  expectFills(screen);
}

}  // namespace
}  // namespace appearance
