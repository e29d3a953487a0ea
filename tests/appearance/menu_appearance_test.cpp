#include <string>
#include <vector>

#include "appearance/appearance_test_base.h"

// The menu as the user opens it: items, order, separators.
namespace appearance {
namespace {

using Lines = std::vector<std::wstring>;

void read(HMENU menu, const std::wstring& indent, Lines& lines) {
  for (int position = 0; position < GetMenuItemCount(menu); ++position) {
    wchar_t text[128] = L"";
    MENUITEMINFOW item = {};
    item.cbSize = sizeof item;
    item.fMask = MIIM_FTYPE | MIIM_STRING | MIIM_SUBMENU | MIIM_STATE;
    item.dwTypeData = text;
    item.cch = 128;
    ASSERT_TRUE(GetMenuItemInfoW(menu, static_cast<UINT>(position), TRUE, &item));
    const bool separator = (item.fType & MFT_SEPARATOR) != 0;
    const bool checked = (item.fState & MFS_CHECKED) != 0;
    lines.push_back(indent + (separator ? L"-" : text) + (checked ? L" (checked)" : L""));
    if (item.hSubMenu) read(item.hSubMenu, indent + L"  ", lines);
  }
}

class MenuAppearance : public AppearanceTest {};

TEST_F(MenuAppearance, ItemsAndSeparatorsAreInOrder) {
  const Lines expected = {L"&File",
                          L"  &Save",
                          L"  &Print",
                          L"  E&xit",
                          L"&Edit",
                          L"  Cu&t\tCtrl+X",
                          L"  &Copy\tCtrl+C",
                          L"  &Paste\tCtrl+V",
                          L"  -",
                          L"  &Floating Decimal\tCtrl+F",
                          L"  &Stationary Decimal\tCtrl+D",
                          L"  -",
                          L"  Copy &Entire Tape",
                          L"  Tape to &Notepad\tCtrl+N",
                          L"&Win",
                          L"  &Always on Top",
                          L"  &Micro Window\tCtrl+S",
                          L"  M&odes",
                          L"    &Adding Machine\tCtrl+A (checked)",
                          L"    &Calculator\tCtrl+T",
                          L"  &Financial Calc",
                          L"    Loan Calc",
                          L"    Investment Calc",
                          L"    Standard Calc",
                          L"  &Pad Tape",
                          L"  &Tape Off\tCtrl+O",
                          L"&Help",
                          L"  Tallyrex &Help",
                          L"  -",
                          L"  &About Tallyrex"};
  Lines seen;
  read(GetMenu(window("frmCalc")), L"", seen);
  EXPECT_EQ(seen, expected);
}

TEST_F(MenuAppearance, DisabledModesMenuSaysWhy) {
  tell("type \"5+\"");
  Lines seen;
  read(GetMenu(window("frmCalc")), L"", seen);
  EXPECT_EQ(seen[17], L"  Modes (equals to enable)");
}

}  // namespace
}  // namespace appearance
