#include <string>
#include <string_view>

#include "appearance/appearance_test_base.h"
#include "win32/work_area.h"

// A message opens over its window, where the user is looking.
namespace appearance {
namespace {

RECT placeOfLastMessage;

// A message may be gone too soon to be found among the windows.
LRESULT CALLBACK noteMessage(int code, WPARAM wParam, LPARAM lParam) {
  constexpr int kLongestName = 8;
  const auto window = reinterpret_cast<HWND>(wParam);
  wchar_t name[kLongestName] = L"";
  if (code == HCBT_DESTROYWND && GetClassNameW(window, name, kLongestName) > 0 &&
      std::wstring_view(name) == L"#32770")
    GetWindowRect(window, &placeOfLastMessage);
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

class MessagePlace : public AppearanceTest {
 protected:
  /// Has the main window show a message, which is closed at once; returns where it was.
  RECT placeOfMessage() {
    placeOfLastMessage = {};
    const DWORD thread = GetWindowThreadProcessId(window("frmCalc"), nullptr);
    const HHOOK hook = SetWindowsHookExW(WH_CBT, noteMessage, nullptr, thread);
    tell("type \"1+\"");
    tell("menu mnuWinPadTape");
    UnhookWindowsHookEx(hook);
    EXPECT_GT(placeOfLastMessage.right, 0) << "no message";
    return placeOfLastMessage;
  }
};

TEST_F(MessagePlace, MessageOpensOverTheMiddleOfItsWindow) {
  tell("move frmCalc 600 900");
  const RECT window = placeOf(this->window("frmCalc"));
  const RECT box = placeOfMessage();
  EXPECT_NEAR((box.left + box.right) / 2, (window.left + window.right) / 2, 1);
  EXPECT_NEAR((box.top + box.bottom) / 2, (window.top + window.bottom) / 2, 1);
}

TEST_F(MessagePlace, MessageOfAWindowAtTheEdgeStaysOnTheScreen) {
  const HWND window = this->window("frmCalc");
  const RECT area = win32::workAreaOf(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST));
  // The menu bar, which the test clicks, is still on the screen.
  tell("move frmCalc " + std::to_string((area.right - 200) * 15) + " " +
       std::to_string((area.bottom - 80) * 15));
  const RECT box = placeOfMessage();
  EXPECT_EQ(box.right, area.right);
  EXPECT_EQ(box.bottom, area.bottom);
}

}  // namespace
}  // namespace appearance
