#include <algorithm>
#include <cstddef>
#include <string>

#include "appearance/appearance_test_base.h"
#include "driver/native_handles.h"
#include "support/wait.h"

// The tool tips as the user sees them: in the system's tool tip window, below the mouse.
namespace appearance {
namespace {

struct Tip {
  const char* window;
  const char* control;
  const wchar_t* text;
};

constexpr Tip kTips[] = {
    {"frmCalc", "cmdClearCurrent", L"Clears only the entry."},
    {"frmCalc", "cmdMemClear", L"Clear memory total only."},
    {"frmCalc", "cmdClearCalc", L"Clears only the total and sets it to zero."},
    {"frmCalc", "cmdMemRecall", L"Recall memory total."},
    {"frmCalc", "cmdClearTape", L"Clears only the tape."},
    {"frmCalc", "cmdMemStore", L"Replace memory total with entry."},
    {"frmCalc", "cmdChangeSign", L"Change Sign"},
    {"frmCalc", "cmdClearAll",
     L"Clears the entry box, the tape and resets the total to zero but does not clear the memory."},
    {"frmCalc", "cmdMemPlus", L"Add entry to memory total."},
    {"frmCalc", "cmdSquareRoot", L"Square Root"},
    {"frmCalc", "chkFloatingDec", L"Floating decimal is on when pressed down."},
    {"frmCalc", "chkShiftDec", L"The decimal is stationary until keyed when pressed down."},
    {"frmCalc", "chkTapeOff", L"Tape is off when pressed down."},
    {"frmCalc", "txtDec", L"Number of decimal places allowed."},
    {"frmAnnuity", "cmdRotateLabels", L"Rotate the financial annuity configuration."},
    {"frmAnnuity", "cmdClearAll", L"Clear all boxes."},
    {"frmAnnuity", "cmdHelp", L"Pulls up help."},
    {"frmAnnuity", "cmdPrintToTape", L"Send Info to Tape."},
};

// The text of the tool tip on the screen; empty without one.
std::wstring shownTip() {
  HWND tip = nullptr;
  while ((tip = FindWindowExW(nullptr, tip, L"tooltips_class32", nullptr)) != nullptr) {
    if (!IsWindowVisible(tip) || !driver::isOurs(tip)) continue;
    wchar_t text[256] = L"";
    SendMessageW(tip, WM_GETTEXT, 256, reinterpret_cast<LPARAM>(text));
    return text;
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
      const RECT place = placeOf(control);
      SetCursorPos((place.left + place.right) / 2, (place.top + place.bottom) / 2);
      return support::eventually([&] { return !(seen = shownTip()).empty(); }, kMoveIsLost);
    });
    return seen;
  }

  void expectTipsOf(const std::string& window) {
    for (const Tip& tip : kTips) {
      if (tip.window != window) continue;
      EXPECT_EQ(tipUnderTheMouse(control(window, tip.control)), tip.text) << tip.control;
    }
  }

  /// How many controls of a window have a tool tip.
  std::ptrdiff_t tipsIn(const std::string& window) {
    std::ptrdiff_t count = 0;
    stage().inspect([&] {
      const auto& controls = stage().findWindow(window)->controls();
      count = std::count_if(controls.begin(), controls.end(),
                            [](const auto& control) { return !control->toolTip().empty(); });
    });
    return count;
  }
};

TEST_F(ToolTips, OfTheMainWindowAppearUnderTheMouse) {
  tell("press Ctrl+T");
  expectTipsOf("frmCalc");
  EXPECT_EQ(tipsIn("frmCalc"), 14);
}

TEST_F(ToolTips, OfTheFinancialCalculatorAppearUnderTheMouse) {
  openAnsweredLoan();
  expectTipsOf("frmAnnuity");
  EXPECT_EQ(tipsIn("frmAnnuity"), 4);
}

TEST_F(ToolTips, KeyWithoutOneShowsNone) {
  SetCursorPos(0, 0);
  const RECT place = placeOf(control("frmCalc", "cmdNumber(7)"));
  SetCursorPos((place.left + place.right) / 2, (place.top + place.bottom) / 2);
  constexpr ULONGLONG kLongEnough = 1500;
  const ULONGLONG until = GetTickCount64() + kLongEnough;
  while (GetTickCount64() < until) {
    ASSERT_EQ(shownTip(), L"");
    Sleep(10);
  }
}

}  // namespace
}  // namespace appearance
