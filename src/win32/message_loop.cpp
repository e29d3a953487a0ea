#include "win32/message_loop.h"

#include <windows.h>

#include "win32/desktop.h"
#include "win32/edge.h"
#include "win32/keys.h"
#include "win32/window.h"

namespace win32 {
namespace {

// The keystroke that the window in front may handle before its control.
std::optional<controls::KeyStroke> strokeOf(const MSG& message) {
  if (message.message != WM_KEYDOWN && message.message != WM_SYSCHAR) return {};
  controls::KeyStroke stroke{.key = static_cast<controls::KeyCode>(message.wParam),
                             .shift = isDown(VK_SHIFT),
                             .control = isDown(VK_CONTROL),
                             .alt = isDown(VK_MENU)};
  // Alt with a letter arrives as a character, which is right for every keyboard layout, and counts
  // as Alt even if that has been released already.
  if (message.message == WM_SYSCHAR) {
    stroke.alt = true;
    const auto upper = CharUpperW(reinterpret_cast<wchar_t*>(message.wParam));
    stroke.key = static_cast<controls::KeyCode>(reinterpret_cast<UINT_PTR>(upper));
    return stroke;
  }
  // Ctrl+Alt types characters.
  if (stroke.alt || isModifier(message.wParam)) return {};
  return stroke;
}

bool isTaken(Desktop& desktop, const MSG& message) {
  const auto stroke = strokeOf(message);
  if (!stroke) return false;
  auto* window = static_cast<Window*>(desktop.activeWindow());
  return window && GetAncestor(message.hwnd, GA_ROOT) == window->handle() &&
         window->takeKey(*stroke);
}

// The decimal key types a point in every keyboard layout.
void translate(const MSG& message) {
  if (message.message == WM_KEYDOWN && message.wParam == VK_DECIMAL) {
    PostMessageW(message.hwnd, WM_CHAR, L'.', message.lParam);
  } else {
    TranslateMessage(&message);
  }
}

// The system sends keys to the focused control even if its window is disabled.
bool isKeptBack(const MSG& message) {
  return message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST &&
         !IsWindowEnabled(GetAncestor(message.hwnd, GA_ROOT));
}

void dispatch(Desktop& desktop, const MSG& message) {
  atTheEdge(desktop.events(), [&]() -> LRESULT {
    if (isKeptBack(message) || isTaken(desktop, message)) return 0;
    translate(message);
    return DispatchMessageW(&message);
  });
}

}  // namespace

// A message that the system cannot deliver, such as a text of a million characters from another
// program, must not end the program. It blocks the others until its sender gives up.
void runMessageLoop(Desktop& desktop) {
  constexpr DWORD kPause = 10;
  MSG message;
  while (const BOOL got = GetMessageW(&message, nullptr, 0, 0)) {
    if (got > 0) {
      dispatch(desktop, message);
    } else {
      Sleep(kPause);
    }
  }
}

void endMessageLoop() {
  PostQuitMessage(0);
}

bool dispatchWaiting(Desktop& desktop) {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) return false;
    dispatch(desktop, message);
  }
  return true;
}

}  // namespace win32
