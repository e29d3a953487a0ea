#include "appearance/appearance_test_base.h"

// The text size of the user's accessibility settings.
namespace appearance {
namespace {

class TextSize : public AppearanceTest {
 protected:
  void TearDown() override {
    forgetTextSize();
    AppearanceTest::TearDown();
  }
  void tellOfIt(const std::string& name) {
    SendMessageW(window(name), WM_SETTINGCHANGE, 0, reinterpret_cast<LPARAM>(L"Accessibility"));
  }
};

TEST_F(TextSize, EnlargesAWindowAndItsContentsAtOnceButNotItsTwips) {
  const HWND frame = window("frmCalc");
  const HWND key = control("frmCalc", "cmdNumber(7)");
  const SIZE before = clientSize(frame);
  const double keyWidth = tell("get cmdNumber(7) Width")["value"].get<double>() * 96 / 1440;
  const LONG fontBefore = fontOf(key).lfHeight;
  const auto width = tell("get frmCalc Width");
  for (const int percent : {150, 225, 100}) {
    chooseTextSize(percent);
    tellOfIt("frmCalc");
    const double factor = percent / 100.0;
    EXPECT_NEAR(clientSize(frame).cx, before.cx * factor, 1.0) << percent;
    EXPECT_NEAR(clientSize(frame).cy, before.cy * factor, 1.0) << percent;
    EXPECT_NEAR(clientSize(key).cx, keyWidth * factor, 1.0) << percent;
    EXPECT_NEAR(fontOf(key).lfHeight, fontBefore * factor, 1.0) << percent;
    EXPECT_EQ(tell("get frmCalc Width"), width) << percent;
  }
}

TEST_F(TextSize, AppliesWhenTheProgramStarts) {
  const SIZE before = clientSize(window("frmCalc"));
  tell("close frmCalc");
  chooseTextSize(150);
  tell("start");
  EXPECT_NEAR(clientSize(window("frmCalc")).cx, before.cx * 1.5, 1.0);
}

}  // namespace
}  // namespace appearance
