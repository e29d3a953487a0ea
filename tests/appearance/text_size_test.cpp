#include "appearance/appearance_test_base.h"

// The size of text that the user has chosen for all programs.
namespace appearance {
namespace {

constexpr wchar_t kKey[] = L"Software\\Microsoft\\Accessibility";
constexpr wchar_t kName[] = L"TextScaleFactor";

class TextSize : public AppearanceTest {
 protected:
  void TearDown() override {
    RegDeleteKeyValueW(HKEY_CURRENT_USER, kKey, kName);
    AppearanceTest::TearDown();
  }
  static void choose(DWORD percent) {
    RegSetKeyValueW(HKEY_CURRENT_USER, kKey, kName, REG_DWORD, &percent, sizeof percent);
  }
  void tellOfIt(const std::string& name) {
    SendMessageW(window(name), WM_SETTINGCHANGE, 0, reinterpret_cast<LPARAM>(L"Accessibility"));
  }
  static void expectOnScreen(HWND window) {
    RECT room;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &room, 0);
    const RECT place = placeOf(window);
    EXPECT_LE(place.right - place.left, room.right - room.left);
    EXPECT_LE(place.bottom - place.top, room.bottom - room.top);
  }
};

TEST_F(TextSize, EnlargesAWindowAndAllInItAtOnceAndNotItsTwips) {
  const HWND frame = window("frmCalc");
  const HWND key = control("frmCalc", "cmdNumber(7)");
  const SIZE before = clientSize(frame);
  const double keyWidth = tell("get cmdNumber(7) Width")["value"].get<double>() * 96 / 1440;
  const LONG fontBefore = fontOf(key).lfHeight;
  const auto width = tell("get frmCalc Width");
  for (const DWORD percent : {150UL, 225UL, 100UL}) {
    choose(percent);
    tellOfIt("frmCalc");
    const double factor = percent / 100.0;
    EXPECT_NEAR(clientSize(frame).cx, before.cx * factor, 1.0) << percent;
    EXPECT_NEAR(clientSize(frame).cy, before.cy * factor, 1.0) << percent;
    EXPECT_NEAR(clientSize(key).cx, keyWidth * factor, 1.0) << percent;
    EXPECT_NEAR(fontOf(key).lfHeight, fontBefore * factor, 1.0) << percent;
    EXPECT_EQ(tell("get frmCalc Width"), width) << percent;
  }
}

TEST_F(TextSize, CountsWhenTheProgramStarts) {
  const SIZE before = clientSize(window("frmCalc"));
  tell("close frmCalc");
  choose(150);
  tell("start");
  EXPECT_NEAR(clientSize(window("frmCalc")).cx, before.cx * 1.5, 1.0);
}

TEST_F(TextSize, NoWindowIsLargerThanTheScreen) {
  tell("menu mnuWinFinCalcLoan");
  for (const int dpi : {96, 192}) {
    for (const DWORD percent : {100UL, 150UL, 225UL}) {
      SCOPED_TRACE(dpi);
      choose(percent);
      for (const char* name : {"frmCalc", "frmAnnuity"}) {
        setResolution(window(name), dpi);
        expectOnScreen(window(name));
      }
    }
  }
}

}  // namespace
}  // namespace appearance
