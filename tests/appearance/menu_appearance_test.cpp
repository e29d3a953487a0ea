#include <string>
#include <vector>

#include "appearance/appearance_test_base.h"
#include "shell/frm_calc_layout.h"
#include "win32/text.h"

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
  Lines expected;
  for (const auto& item : shell::frmCalcLayout().menu)
    expected.push_back(std::wstring(2 * static_cast<std::size_t>(item.level), L' ') +
                       win32::wide(item.caption) + (item.shortcut.empty() ? L"" : L"\t") +
                       win32::wide(item.shortcut) +
                       (item.name == "mnuWinMode(0)" ? L" (checked)" : L""));
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
