#include <string>
#include <thread>

#include "appearance/appearance_test_base.h"
#include "win32/work_area.h"

// A message opens over its window, where the user is looking.
namespace appearance {
namespace {

class MessagePlace : public AppearanceTest {
 protected:
  /// Has the main window show a message, which is closed at once; returns where it was.
  RECT placeOfMessage() {
    RECT box = {};
    std::thread watcher([&box] {
      constexpr int kTries = 2000;
      bool gone = false;
      for (int tries = 0; tries < kTries && !gone; ++tries) {
        RECT seen = {};
        const HWND dialog = FindWindowW(L"#32770", L"Tallyrex");
        if (dialog && IsWindowVisible(dialog) && GetWindowRect(dialog, &seen)) box = seen;
        gone = !dialog && box.right > 0;
        Sleep(1);
      }
    });
    tell("type \"1+\"");
    tell("menu mnuWinPadTape");
    watcher.join();
    EXPECT_GT(box.right, 0) << "no message";
    return box;
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
