#include "desktop/desktop_test.h"
#include "support/input.h"
#include "support/windows.h"

namespace desktop {
namespace {

using namespace support;

constexpr int kTwipsPerInch = 1440;

class WindowTest : public DesktopTest {
 protected:
  /// The keys of a hand that does not wait in between: the driver gives up a menu that stays open.
  void pressAltAnd(WORD key, Inputs keysBehind = {}) {
    Inputs inputs;
    keyDown(inputs, VK_MENU);
    tap(inputs, key);
    keyUp(inputs, VK_MENU);
    inputs.insert(inputs.end(), keysBehind.begin(), keysBehind.end());
    stage().sendKeys(inputs);
  }

  int twips(int pixels) { return MulDiv(pixels, kTwipsPerInch, static_cast<int>(dpi())); }
  UINT dpi() { return GetDpiForWindow(window("frmCalc")); }

  /// The answer to the next command after something was changed behind the program's back.
  std::string errorOfNextCommand() {
    driver::Driver driver(stage());
    const auto answer = driver::Json::parse(driver.answer("press Home"));
    return answer.value("error", "");
  }
};

TEST_F(WindowTest, MenusOpenWithTheirAccessKeys) {
  Inputs inputs;
  tap(inputs, 'P');
  pressAltAnd('W', inputs);
  EXPECT_EQ(tell("get mnuWinPadTape Checked")["value"], true);
}

TEST_F(WindowTest, AltF4ClosesTheProgram) {
  pressAltAnd(VK_F4);
  EXPECT_FALSE(stage().running());
}

TEST_F(WindowTest, DraggingTheCornerResizesWindowAndTape) {
  constexpr int kPixels = 40;
  const int width = tell("get frmCalc Width")["value"];
  const int tapeWidth = tell("get txtTape Width")["value"];
  RECT frame = placeOf(window("frmCalc"));
  stage().dragFrame({frame.right - 2, frame.bottom - 2},
                    {frame.right - 2 + kPixels, frame.bottom - 2 + kPixels});
  EXPECT_EQ(tell("get frmCalc Width")["value"], width + twips(kPixels));
  EXPECT_EQ(tell("get txtTape Width")["value"], tapeWidth + twips(kPixels));
}

TEST_F(WindowTest, DraggingStopsAtTheMicroWindowSize) {
  tell("move frmCalc 1500 1500");
  RECT frame = placeOf(window("frmCalc"));
  stage().dragFrame({frame.right - 2, frame.bottom - 2}, {frame.left + 10, frame.top + 10});
  EXPECT_EQ(tell("get frmCalc Width")["value"], 2280);
  EXPECT_EQ(tell("get frmCalc Height")["value"], 1095);
  frame = placeOf(window("frmCalc"));
  stage().dragFrame({frame.left + 1, frame.top + 1}, {frame.right + 300, frame.bottom + 300});
  // The system may stop one pixel short.
  const int pixel = twips(1);
  EXPECT_NEAR(tell("get frmCalc Width")["value"].get<int>(), 2280, pixel);
  EXPECT_NEAR(tell("get frmCalc Height")["value"].get<int>(), 1095, pixel);
}

TEST_F(WindowTest, SmallerStoredSizesAreAppliedUnchanged) {
  tell("close frmCalc");
  tell("store set Settings frmCalcAtUnloadWidth \"1500\"");
  tell("store set Settings frmCalcAtUnloadHeight \"900\"");
  tell("start");
  EXPECT_EQ(tell("get frmCalc Width")["value"], 1500);
  EXPECT_EQ(tell("get frmCalc Height")["value"], 900);
}

TEST_F(WindowTest, DraggingTheTitleMovesTheWindow) {
  constexpr int kPixels = 60;
  const int width = tell("get frmCalc Width")["value"];
  RECT frame = placeOf(window("frmCalc"));
  const POINT title = titleOf(frame);
  stage().dragFrame(title, {title.x + kPixels, title.y + kPixels});
  EXPECT_EQ(tell("get frmCalc Left")["value"], twips(frame.left + kPixels));
  EXPECT_EQ(tell("get frmCalc Width")["value"], width);
}

// The driver compares its answers with the screen; it must notice each of these differences.
TEST_F(WindowTest, DifferencesOnTheScreenAreDetected) {
  const std::wstring title = textOf(window("frmCalc"));
  SetWindowTextW(window("frmCalc"), L"another title");
  EXPECT_EQ(errorOfNextCommand(), "on the screen: frmCalc shows wrongly its caption");
  SetWindowTextW(window("frmCalc"), title.c_str());
  ShowWindow(control("frmCalc", "cmdPlus"), SW_HIDE);
  EXPECT_EQ(errorOfNextCommand(), "on the screen: cmdPlus shows wrongly whether it is visible");
  ShowWindow(control("frmCalc", "cmdPlus"), SW_SHOWNA);
  EnableWindow(control("frmCalc", "cmdPlus"), FALSE);
  EXPECT_EQ(errorOfNextCommand(), "on the screen: cmdPlus shows wrongly whether it is enabled");
  EnableWindow(control("frmCalc", "cmdPlus"), TRUE);
  SendMessageW(control("frmCalc", "chkTapeOff"), BM_SETCHECK, BST_CHECKED, 0);
  EXPECT_EQ(errorOfNextCommand(), "on the screen: chkTapeOff shows wrongly its value");
  SendMessageW(control("frmCalc", "chkTapeOff"), BM_SETCHECK, BST_UNCHECKED, 0);
  EnableMenuItem(GetMenu(window("frmCalc")), 0, MF_BYPOSITION | MF_GRAYED);
  EXPECT_EQ(errorOfNextCommand(), "on the screen: mnuFile shows wrongly whether it is enabled");
  EnableMenuItem(GetMenu(window("frmCalc")), 0, MF_BYPOSITION | MF_ENABLED);
  EXPECT_EQ(errorOfNextCommand(), "");
}

}  // namespace
}  // namespace desktop
