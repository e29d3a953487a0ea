#include <windows.h>

#include <gtest/gtest.h>

#include "contract/kind.h"
#include "driver/native_keyboard.h"
#include "driver/native_mouse.h"
#include "win32/desktop.h"
#include "win32/message_loop.h"
#include "win32/native_control.h"

namespace contract {

namespace {

constexpr DWORD kLongestWait = 5000;
// A key that no keyboard has: its release comes in behind everything that was typed before it.
constexpr WORD kMarkKey = 0xE8;
constexpr ULONG_PTR kMark = 0x7A11;

bool markSeen = false;

LRESULT CALLBACK watchMessage(int code, WPARAM removed, LPARAM pointer) {
  auto& message = *reinterpret_cast<MSG*>(pointer);
  const bool isKeyUp = message.message == WM_KEYUP || message.message == WM_SYSKEYUP;
  if (code == HC_ACTION && removed == PM_REMOVE && isKeyUp && message.wParam == kMarkKey) {
    markSeen = true;
    message.message = WM_NULL;
  }
  return CallNextHookEx(nullptr, code, removed, pointer);
}

/// The real windows, with real key strokes and clicks.
class NativeKind : public Kind {
 public:
  NativeKind()
      : desktop_("Software\\Tallyrex Contract Tests"),
        hook_(SetWindowsHookExW(WH_GETMESSAGE, watchMessage, nullptr, GetCurrentThreadId())) {}
  ~NativeKind() override { UnhookWindowsHookEx(hook_); }
  NativeKind(const NativeKind&) = delete;
  NativeKind& operator=(const NativeKind&) = delete;

  controls::Desktop& desktop() override { return desktop_; }

  void press(const controls::KeyStroke& stroke, controls::KeyAscii character) override {
    auto inputs = keyboard_.down(stroke, character);
    const auto release = keyboard_.up(stroke);
    inputs.insert(inputs.end(), release.begin(), release.end());
    sendAndWait(inputs);
  }

  void click(controls::Control& control) override {
    settle();
    const HWND window = dynamic_cast<win32::NativeControl&>(control).handle();
    POINT place;
    ASSERT_TRUE(driver::placeToClick(window, place)) << control.name() << " cannot be reached";
    SetCursorPos(place.x, place.y);
    settle();
    sendAndWait({driver::mouseButton(driver::MouseButton::Left, false, 0),
                 driver::mouseButton(driver::MouseButton::Left, true, 0)});
  }

  void settle() override { sendAndWait({}); }

 private:
  void sendAndWait(std::vector<INPUT> inputs) {
    INPUT mark = {};
    mark.type = INPUT_KEYBOARD;
    mark.ki.wVk = kMarkKey;
    mark.ki.dwFlags = KEYEVENTF_KEYUP;
    mark.ki.dwExtraInfo = kMark;
    inputs.push_back(mark);
    markSeen = false;
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
    const ULONGLONG start = GetTickCount64();
    while (!markSeen && GetTickCount64() - start < kLongestWait) {
      win32::dispatchWaiting(desktop_);
      if (!markSeen) MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
    win32::dispatchWaiting(desktop_);
    EXPECT_TRUE(markSeen) << "the input did not come in";
  }

  win32::Desktop desktop_;
  driver::NativeKeyboard keyboard_;
  HHOOK hook_;
};

}  // namespace

std::unique_ptr<Kind> makeKind() {
  return std::make_unique<NativeKind>();
}

}  // namespace contract
