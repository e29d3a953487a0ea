#include <thread>

#include "appearance/appearance_test_base.h"

// A message stands where the user looks: over its window.
namespace appearance {
namespace {

class MessagePlace : public AppearanceTest {};

TEST_F(MessagePlace, MessageStandsOverTheMiddleOfItsWindow) {
  tell("move frmCalc 600 900");
  const RECT window = placeOf(this->window("frmCalc"));
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
  ASSERT_GT(box.right, 0) << "no message";
  EXPECT_NEAR((box.left + box.right) / 2, (window.left + window.right) / 2, 1);
  EXPECT_NEAR((box.top + box.bottom) / 2, (window.top + window.bottom) / 2, 1);
}

}  // namespace
}  // namespace appearance
