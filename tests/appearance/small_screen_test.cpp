#include <cstdio>
#include <string>

#include "appearance/appearance_test_base.h"
#include "win32/work_area.h"

// A screen that is small for the resolution and the text size: every window stays on it.
namespace appearance {
namespace {

/// A resolution, and the user's text size in percent.
struct Size {
  int dpi;
  int text;
};

void PrintTo(const Size& size, std::ostream* out) {
  *out << size.dpi << " dpi, text of " << size.text << " percent";
}

class SmallScreen : public AppearanceTest, public testing::WithParamInterface<Size> {
 protected:
  static void SetUpTestSuite() {
    std::printf("Screen of %d x %d\n", GetSystemMetrics(SM_CXSCREEN),
                GetSystemMetrics(SM_CYSCREEN));
  }
  void SetUp() override {
    chooseTextSize(GetParam().text);
    AppearanceTest::SetUp();
  }
  void TearDown() override {
    forgetTextSize();
    AppearanceTest::TearDown();
  }

  /// At a higher resolution, a window is more pixels away from the corner of the screen.
  void expectOnScreen(const std::string& name) {
    const RECT before = placeOf(window(name));
    const LONG left = MulDiv(before.left, GetParam().dpi, 96);
    const LONG top = MulDiv(before.top, GetParam().dpi, 96);
    setResolution(window(name), GetParam().dpi, {left, top, left, top});
    const RECT place = placeOf(window(name));
    const RECT area = win32::workAreaOf(MonitorFromWindow(window(name), MONITOR_DEFAULTTONEAREST));
    EXPECT_GE(place.left, area.left);
    EXPECT_GE(place.top, area.top);
    EXPECT_LE(place.right, area.right);
    EXPECT_LE(place.bottom, area.bottom);
    setResolution(window(name), 96, before);
  }
};

TEST_P(SmallScreen, MainWindowStaysOnIt) {
  expectOnScreen("frmCalc");
}

TEST_P(SmallScreen, MicroWindowStaysOnIt) {
  tell("menu mnuWinMicroWindow");
  expectOnScreen("frmCalc");
}

TEST_P(SmallScreen, FinancialCalculatorStaysOnItInEachConfiguration) {
  for (const char* item : {"mnuWinFinCalcLoan", "mnuWinFinCalcInv", "mnuFinCalcStandard"}) {
    SCOPED_TRACE(item);
    tell(std::string("menu ") + item);
    expectOnScreen("frmAnnuity");
  }
}

TEST_P(SmallScreen, AboutBoxStaysOnIt) {
  tell("menu mnuHelpAbout");
  expectOnScreen("frmAbout");
  tell("close frmAbout");
}

INSTANTIATE_TEST_SUITE_P(Sizes, SmallScreen,
                         testing::Values(Size{96, 100}, Size{96, 150}, Size{96, 225},
                                         Size{192, 100}, Size{192, 150}, Size{192, 225}));

}  // namespace
}  // namespace appearance
