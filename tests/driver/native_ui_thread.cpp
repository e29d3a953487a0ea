#include "driver/native_ui_thread.h"

#include <exception>
#include <limits>
#include <memory>

#include "support/input.h"
#include "support/retries.h"

namespace driver {

namespace {

constexpr wchar_t kClassName[] = L"TallyrexDriver";
constexpr UINT kInspect = WM_APP;
constexpr UINT kPost = WM_APP + 1;
constexpr UINT kMarkRest = WM_APP + 2;
constexpr UINT_PTR kRestTimer = 1;

constexpr WORD kMarkKey = VK_F24;
// The upper half of the data of a mark, which distinguishes it from other programs' input.
constexpr ULONG_PTR kMarkSign = 0x7A5E0000;
constexpr ULONG_PTR kMarkNumbers = 0xFFFF;
static_assert(kMarkNumbers == std::numeric_limits<std::uint16_t>::max());

constexpr ULONG_PTR kHeldKeys = UiThread::kHeldShift | UiThread::kHeldControl | UiThread::kHeldAlt;

ULONG_PTR heldKeys() {
  return (GetKeyState(VK_SHIFT) < 0 ? UiThread::kHeldShift : 0) |
         (GetKeyState(VK_CONTROL) < 0 ? UiThread::kHeldControl : 0) |
         (GetKeyState(VK_MENU) < 0 ? UiThread::kHeldAlt : 0);
}

bool isSame(POINT one, POINT other) {
  return one.x == other.x && one.y == other.y;
}

}  // namespace

UiThread* UiThread::current_ = nullptr;
std::uint16_t UiThread::marks_ = 0;

struct UiThread::Call {
  const std::function<void()>& body;
  std::exception_ptr failure;
};

UiThread::UiThread() {
  current_ = this;
  WNDCLASSW windowClass = {};
  windowClass.lpfnWndProc = handleMessage;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.lpszClassName = kClassName;
  RegisterClassW(&windowClass);
  window_ = CreateWindowW(kClassName, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                          windowClass.hInstance, nullptr);
  progress_ = CreateEventW(nullptr, FALSE, FALSE, nullptr);
  messageHook_ = SetWindowsHookExW(WH_GETMESSAGE, watchMessage, nullptr, GetCurrentThreadId());
  mouseHook_ = SetWindowsHookExW(WH_MOUSE, watchMouse, nullptr, GetCurrentThreadId());
}

UiThread::~UiThread() {
  UnhookWindowsHookEx(mouseHook_);
  UnhookWindowsHookEx(messageHook_);
  CloseHandle(progress_);
  DestroyWindow(window_);
  current_ = nullptr;
}

void UiThread::inspect(const std::function<void()>& body) {
  Call call = {body, nullptr};
  SendMessageW(window_, kInspect, 0, reinterpret_cast<LPARAM>(&call));
  if (call.failure) std::rethrow_exception(call.failure);
}

void UiThread::post(std::function<void()> body) {
  ++posts_;
  auto* left = new std::function<void()>(std::move(body));
  PostMessageW(window_, kPost, 0, reinterpret_cast<LPARAM>(left));
}

INPUT UiThread::nextMark() {
  ++marks_;
  INPUT mark = support::keyInput(kMarkKey, KEYEVENTF_KEYUP);
  mark.ki.dwExtraInfo = kMarkSign | marks_;
  return mark;
}

// Timer messages arrive only when the queue is empty otherwise.
void UiThread::markRest() {
  if (restAwaited_.exchange(true)) return;
  PostMessageW(window_, kMarkRest, 0, 0);
}

template <class Condition>
bool UiThread::waitFor(Condition condition, DWORD milliseconds) {
  const ULONGLONG until = GetTickCount64() + milliseconds;
  while (!condition()) {
    const ULONGLONG now = GetTickCount64();
    if (now >= until) return false;
    WaitForSingleObject(progress_, static_cast<DWORD>(until - now));
  }
  return true;
}

bool UiThread::waitUntilReached(DWORD milliseconds) {
  return waitFor([this] { return reached(); }, milliseconds);
}

bool UiThread::isMouseAt(POINT place) const {
  const POINT mouse = mouse_;
  return isSame(mouse, place);
}

void UiThread::expectMove(POINT place) {
  place_ = place;
  mouse_ = kNowhere;
}

bool UiThread::waitForMove(DWORD milliseconds) {
  return waitFor([this] { return isMouseAt(place_); }, milliseconds);
}

void UiThread::expectClick(POINT place, HWND seen, HWND pressed) {
  place_ = place;
  seen_ = seen;
  pressed_ = pressed;
  character_ = 0;
  aim_ = Aim::Open;
}

void UiThread::expectKey(WPARAM character) {
  character_ = character;
  aim_ = Aim::Open;
}

void UiThread::expectCommand(UINT command) {
  command_ = command;
  commandTaken_ = false;
}

LRESULT CALLBACK UiThread::handleMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == kInspect) {
    auto& call = *reinterpret_cast<Call*>(lParam);
    try {
      call.body();
    } catch (...) {
      call.failure = std::current_exception();
    }
    return 0;
  }
  if (message == kPost) {
    const std::unique_ptr<std::function<void()>> body(
        reinterpret_cast<std::function<void()>*>(lParam));
    (*body)();
    ++current_->postsRun_;
    SetEvent(current_->progress_);
    return 0;
  }
  if (message == kMarkRest) {
    SetTimer(window, kRestTimer, USER_TIMER_MINIMUM, nullptr);
    return 0;
  }
  if (message == WM_TIMER) {
    KillTimer(window, kRestTimer);
    current_->restAwaited_ = false;
    SetEvent(current_->progress_);
    return 0;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

// Sees every message that the program takes from its queue, even while a dialog is open.
LRESULT CALLBACK UiThread::watchMessage(int code, WPARAM wParam, LPARAM lParam) {
  auto& message = *reinterpret_cast<MSG*>(lParam);
  if (code == HC_ACTION && wParam == PM_REMOVE) {
    if (message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST)
      current_->watchKey(message);
    if (message.message == WM_COMMAND) current_->watchCommand(message);
  }
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

void UiThread::watchKey(MSG& message) {
  const bool down = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
  const auto extra = static_cast<ULONG_PTR>(GetMessageExtraInfo());
  if (!down && message.wParam == kMarkKey && (extra & ~kMarkNumbers) == kMarkSign) {
    message.message = WM_NULL;
    noteMark(extra);
  } else if (down && (extra & ~kHeldKeys) == kHeldInput) {
    aim_ = isHeld(message, extra & kHeldKeys) ? Aim::Good : Aim::Missed;
    if (missed()) message.message = WM_NULL;
  } else if (message.message == WM_CHAR) {
    watchCharacter(message);
  }
}

// A letter that arrives without the Alt flag opens no menu, even if Alt seems to be down by now.
bool UiThread::isHeld(const MSG& message, ULONG_PTR keys) {
  const bool isPlain = message.message != WM_SYSKEYDOWN;
  return keys == heldKeys() && !(keys == kHeldAlt && isPlain);
}

// The system derives the character from the modifiers down a moment after the key.
void UiThread::watchCharacter(MSG& message) {
  const WPARAM expected = character_;
  if (expected == 0 || message.wParam == expected) return;
  message.message = WM_NULL;
  aim_ = Aim::Missed;
}

// Menu commands are posted, without a control and a code.
void UiThread::watchCommand(const MSG& message) {
  if (message.lParam == 0 && message.wParam == command_) commandTaken_ = true;
}

LRESULT CALLBACK UiThread::watchMouse(int code, WPARAM wParam, LPARAM lParam) {
  const auto& mouse = *reinterpret_cast<const MOUSEHOOKSTRUCT*>(lParam);
  const bool isMove = wParam == WM_MOUSEMOVE || wParam == WM_NCMOUSEMOVE;
  if (code == HC_ACTION && isMove) current_->noteMove(mouse.pt);
  const bool isAimedInput = code >= 0 && !isMove && mouse.dwExtraInfo == kAimedInput;
  if (isAimedInput && !current_->comesThrough(mouse)) return 1;
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

void UiThread::noteMove(POINT mouse) {
  mouse_ = mouse;
  SetEvent(progress_);
}

// A menu peeks at a click, acts on it, and then removes it. The state at the peek counts.
bool UiThread::comesThrough(const MOUSEHOOKSTRUCT& mouse) {
  if (aim_ == Aim::Open) aim_ = isAimed(mouse) ? Aim::Good : Aim::Missed;
  return aim_ == Aim::Good;
}

bool UiThread::isAimed(const MOUSEHOOKSTRUCT& mouse) const {
  const POINT place = place_;
  return isSame(mouse.pt, place) && isMouseAt(place) &&
         (!seen_ || WindowFromPoint(mouse.pt) == seen_) && (!pressed_ || GetCapture() == pressed_);
}

// Marks arrive in order, but one may be lost while no window of the program is in front. One that a
// busy machine has only delayed is none of those, nor one that a menu takes from the queue twice.
void UiThread::noteMark(ULONG_PTR extra) {
  const auto mark = static_cast<std::uint16_t>(extra & kMarkNumbers);
  const auto since = static_cast<std::int16_t>(mark - marksSeen_);
  if (since > 1) support::noteRetry("a mark");
  marksSeen_ = mark;
  SetEvent(progress_);
}

}  // namespace driver
