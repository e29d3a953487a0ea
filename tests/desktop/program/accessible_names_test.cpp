// Defines the identifiers declared by the next header.
#include <initguid.h>

#include <oleacc.h>

#include <set>

#include "about/frm_about.h"
#include "desktop/program/program_test.h"

namespace program {
namespace {

using Names = std::set<std::wstring>;

// The name of a control for screen readers.
std::wstring accessibleName(HWND control) {
  IAccessible* object = nullptr;
  if (FAILED(AccessibleObjectFromWindow(control, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                                        reinterpret_cast<void**>(&object))))
    return L"(no object)";
  VARIANT self = {};
  self.vt = VT_I4;
  self.lVal = CHILDID_SELF;
  BSTR name = nullptr;
  object->get_accName(self, &name);
  const std::wstring result(name ? name : L"(no name)");
  SysFreeString(name);
  object->Release();
  return result;
}

// As shown in the About box; ASCII only.
std::wstring version() {
  const std::string text = about::versionText(about::programVersion());
  return {text.begin(), text.end()};
}

class AccessibleNamesTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    start();
  }
  void TearDown() override {
    ProgramTest::TearDown();
    CoUninitialize();
  }

  /// Of all visible controls, or of those of one class.
  static Names namesIn(HWND window, const std::wstring& kind = {}) {
    Names names;
    for (HWND control : shownChildren(window))
      if (kind.empty() || classOf(control) == kind) names.insert(accessibleName(control));
    return names;
  }
};

TEST_F(AccessibleNamesTest, MainWindowControlsHaveNames) {
  // What says each posting has no name until something has been posted.
  const std::vector<std::wstring> names = namesInTabOrder();
  Names expected = {L"(no name)", L"Decimals:"};
  expected.merge(Names(names.begin(), names.end()));
  EXPECT_EQ(namesIn(program().mainWindow()), expected);
}

TEST_F(AccessibleNamesTest, MainWindowBoxesHaveNames) {
  EXPECT_EQ(accessibleName(program().entry()), L"Entry");
  EXPECT_EQ(accessibleName(program().tape()), L"Tape");
  EXPECT_EQ(accessibleName(program().decimals()), L"Decimal places");
}

TEST_F(AccessibleNamesTest, LoanFieldsAreNamedByTheirLabels) {
  const HWND window = openCalculator(0, L"Loan Annuities");
  EXPECT_EQ(namesIn(window, L"Edit"),
            (Names{L"Length of Time:", L"Annual Interest Rate:", L"Monthly Payment:",
                   L"Loan Amount:", L"Balloon Payment:"}));
}

TEST_F(AccessibleNamesTest, InvestmentFieldsAreNamedByTheirLabels) {
  const HWND window = openCalculator(1, L"Investment Annuities");
  EXPECT_EQ(namesIn(window, L"Edit"),
            (Names{L"Length of Time:", L"Annual Interest Rate:", L"Monthly Investment:",
                   L"Dollars Invested Today:", L"Future Value:"}));
}

TEST_F(AccessibleNamesTest, FinancialCalculatorButtonsHaveNames) {
  const HWND window = openCalculator(0, L"Loan Annuities");
  EXPECT_EQ(namesIn(window, L"Button"),
            (Names{L"Calculate", L"Rotate configuration", L"Clear all boxes", L"Help", L"Months",
                   L"Years", L"Payments are due by:", L"the end (default)", L"the beginning"}));
}

TEST_F(AccessibleNamesTest, AboutBoxControlsHaveNames) {
  EXPECT_EQ(
      namesIn(openAboutBox()),
      (Names{L"Tallyrex", version(), L"Copyright 2026 The Tallyrex authors  The Tallyrex authors",
             L"OK", L"System Info..."}));
}

}  // namespace
}  // namespace program
