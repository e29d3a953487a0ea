#include <windows.h>

#include <gtest/gtest.h>

#include "contract/kind.h"
#include "driver/native_handles.h"
#include "driver/native_keyboard.h"
#include "driver/native_mouse.h"
#include "support/clipboard.h"
#include "support/input.h"
#include "win32/desktop.h"
#include "win32/message_loop.h"
#include "win32/native_control.h"
#include "win32/window.h"

namespace contract {

namespace {

constexpr DWORD kLongestWait = 5000;
constexpr DWORD kMarkIsLate = 500;
constexpr int kTries = 5;
// A key that no keyboard has: its release arrives after everything typed before.
constexpr WORD kMarkKey = 0xE8;
constexpr ULONG_PTR kMark = 0x7A11;

bool markSeen = false;

INPUT mark() {
  INPUT input = support::keyInput(kMarkKey, KEYEVENTF_KEYUP);
  input.ki.dwExtraInfo = kMark;
  return input;
}

LRESULT CALLBACK watchMessage(int code, WPARAM removed, LPARAM pointer) {
  auto& message = *reinterpret_cast<MSG*>(pointer);
  const bool isKeyUp = message.message == WM_KEYUP || message.message == WM_SYSKEYUP;
  if (code == HC_ACTION && removed == PM_REMOVE && isKeyUp && message.wParam == kMarkKey) {
    markSeen = true;
    message.message = WM_NULL;
  }
  return CallNextHookEx(nullptr, code, removed, pointer);
}

/// Another thread that keeps the clipboard open, as another program might.
class ClipboardHolder {
 public:
  ClipboardHolder()
      : held_(CreateEventW(nullptr, TRUE, FALSE, nullptr)),
        done_(CreateEventW(nullptr, TRUE, FALSE, nullptr)),
        thread_(CreateThread(nullptr, 0, hold, this, 0, nullptr)) {
    WaitForSingleObject(held_, INFINITE);
  }
  ~ClipboardHolder() {
    SetEvent(done_);
    WaitForSingleObject(thread_, INFINITE);
    for (const HANDLE handle : {held_, done_, thread_}) CloseHandle(handle);
  }
  ClipboardHolder(const ClipboardHolder&) = delete;
  ClipboardHolder& operator=(const ClipboardHolder&) = delete;

 private:
  static DWORD WINAPI hold(void* self) {
    const auto& holder = *static_cast<ClipboardHolder*>(self);
    const support::OpenedClipboard opened;
    SetEvent(holder.held_);
    WaitForSingleObject(holder.done_, INFINITE);
    return 0;
  }

  HANDLE held_;
  HANDLE done_;
  HANDLE thread_;
};

/// The real windows, with real keystrokes and clicks.
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

  void whileClipboardIsLocked(const std::function<void()>& body) override {
    const ClipboardHolder holder;
    body();
  }

  void settle() override { sendAndWait({}); }

 private:
  // Input that is sent while no window is in front is lost, including the mark.
  void sendAndWait(std::vector<INPUT> inputs) {
    inputs.push_back(mark());
    markSeen = false;
    for (int i = 0; i < kTries && !markSeen; ++i) {
      if (i > 0) bringToFront();
      support::send(inputs);
      waitForMark();
    }
    win32::dispatchWaiting(desktop_);
    EXPECT_TRUE(markSeen) << "the input did not come in";
  }

  void waitForMark() {
    const ULONGLONG start = GetTickCount64();
    for (ULONGLONG waited = 0; !markSeen; waited = GetTickCount64() - start) {
      if (waited > kLongestWait || (waited > kMarkIsLate && !driver::isInFront())) return;
      win32::dispatchWaiting(desktop_);
      if (!markSeen) MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
  }

  // The virtual screen may take the foreground away from a window again.
  void bringToFront() {
    if (const auto* window = dynamic_cast<win32::Window*>(desktop_.activeWindow()))
      SetForegroundWindow(window->handle());
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
