#include <string>

#include "annuity/frm_annuity_layout.h"
#include "appearance/appearance_test_base.h"
#include "driver/native_handles.h"
#include "shell/frm_calc_layout.h"
#include "support/wait.h"
#include "win32/text.h"

// The tool tips as the user sees them: in the system's tool tip window, below the mouse.
namespace appearance {
namespace {

// The text of the tool tip on the screen; empty without one.
std::wstring shownTip() {
  HWND tip = nullptr;
  while ((tip = FindWindowExW(nullptr, tip, L"tooltips_class32", nullptr)) != nullptr) {
    if (!IsWindowVisible(tip) || !driver::isOurs(tip)) continue;
    return support::textOf(tip);
  }
  return {};
}

class ToolTips : public AppearanceTest {
 protected:
  void TearDown() override {
    SetCursorPos(0, 0);
    AppearanceTest::TearDown();
  }

  /// Moves the mouse over a control, again when the screen has lost that, until a tool tip appears.
  static std::wstring tipUnderTheMouse(HWND control) {
    constexpr ULONGLONG kMoveIsLost = 2000;
    std::wstring seen;
    support::eventually([&] {
      SetCursorPos(0, 0);
      support::eventually([] { return shownTip().empty(); }, kMoveIsLost);
      const POINT middle = support::middleOf(placeOf(control));
      SetCursorPos(middle.x, middle.y);
      return support::eventually([&] { return !(seen = shownTip()).empty(); }, kMoveIsLost);
    });
    return seen;
  }

  /// Of all controls that have one; returns how many these are.
  int expectTipsOf(const controls::WindowLayout& layout) {
    int tips = 0;
    for (const controls::ControlLayout& each : layout.controls) {
      if (each.toolTip.empty()) continue;
      const HWND handle = control(std::string(layout.name), std::string(each.name));
      EXPECT_EQ(tipUnderTheMouse(handle), win32::wide(each.toolTip)) << each.name;
      ++tips;
    }
    return tips;
  }
};

TEST_F(ToolTips, OfTheMainWindowAppearUnderTheMouse) {
  tell("press Ctrl+T");
  EXPECT_EQ(expectTipsOf(shell::frmCalcLayout()), 14);
}

TEST_F(ToolTips, OfTheFinancialCalculatorAppearUnderTheMouse) {
  openAnsweredLoan();
  EXPECT_EQ(expectTipsOf(annuity::frmAnnuityLayout()), 4);
}

TEST_F(ToolTips, KeyWithoutOneShowsNone) {
  SetCursorPos(0, 0);
  const POINT middle = support::middleOf(placeOf(control("frmCalc", "cmdNumber(7)")));
  SetCursorPos(middle.x, middle.y);
  constexpr ULONGLONG kLongEnough = 1500;
  const ULONGLONG until = GetTickCount64() + kLongEnough;
  while (GetTickCount64() < until) {
    ASSERT_EQ(shownTip(), L"");
    Sleep(10);
  }
}

}  // namespace
}  // namespace appearance
