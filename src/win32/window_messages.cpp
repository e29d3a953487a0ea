#include "win32/desktop.h"
#include "win32/edge.h"
#include "win32/menu_item.h"
#include "win32/native_control.h"
#include "win32/window.h"

namespace win32 {

LRESULT CALLBACK Window::receive(HWND handle, UINT id, WPARAM wParam, LPARAM lParam) {
  auto* window = reinterpret_cast<Window*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
  if (!window) return DefWindowProcW(handle, id, wParam, lParam);
  const Message message{id, wParam, lParam};
  if (endsWindow(message)) return 0;
  return atTheEdge(window->desktop().events(), [&] {
    const std::optional<LRESULT> result = window->take(message);
    return result ? *result : window->passOn(message);
  });
}

LRESULT Window::passOn(const Message& message) {
  return DefWindowProcW(handle_, message.id, message.wParam, message.lParam);
}

std::optional<LRESULT> Window::take(const Message& message) {
  switch (message.id) {
    case WM_ACTIVATE:
    case WM_SETFOCUS:
      return takeFocus(message);
    case WM_SYSCOMMAND:
    case WM_GETMINMAXINFO:
    case WM_WINDOWPOSCHANGED:
      return takeGeometry(message);
    case WM_DPICHANGED:
      if (LOWORD(message.wParam) == 0 || !pointsTo<RECT>(message)) return 0;
      return takeGeometry(message);
    case WM_COMMAND:
    case WM_NOTIFY:
      return takeControl(message);
    case WM_SETTINGCHANGE:
      takeTextSize();
      return {};
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
      return takeColors(message);
    case WM_CLOSE:
    case WM_ENDSESSION:
      return takeClosing(message);
    default:
      return {};
  }
}

std::optional<LRESULT> Window::takeFocus(const Message& message) {
  if (message.id == WM_SETFOCUS) {
    focusNative();
    return 0;
  }
  if (LOWORD(message.wParam) == WA_INACTIVE) return {};
  takeTextSize();
  noteActivated();
  const bool minimized = HIWORD(message.wParam) != 0;
  if (minimized || !focusedControl()) return {};
  // The system would give the focus to the window first, which then would pass it on.
  focusNative();
  return 0;
}

std::optional<LRESULT> Window::takeControl(const Message& message) {
  if (message.id == WM_NOTIFY) {
    if (!pointsTo<NMCUSTOMDRAW>(message)) return 0;
    auto& header = *reinterpret_cast<NMHDR*>(message.lParam);
    if (header.code != NM_CUSTOMDRAW) return {};
    NativeControl* control = NativeControl::find(*this, header.hwndFrom);
    if (!control) return {};
    return control->customDraw(reinterpret_cast<NMCUSTOMDRAW&>(header));
  }
  // Ignores commands from outside while a dialog is in front.
  if (!IsWindowEnabled(handle_)) return 0;
  if (message.lParam) {
    NativeControl* control = NativeControl::find(*this, reinterpret_cast<HWND>(message.lParam));
    if (control) control->takeNotification(HIWORD(message.wParam));
    return 0;
  }
  const auto item = MenuItem::indexOf(LOWORD(message.wParam));
  if (item < menuItems().size()) menuItems()[item]->choose();
  return 0;
}

std::optional<LRESULT> Window::takeColors(const Message& message) {
  if (message.id == WM_SYSCOLORCHANGE || message.id == WM_THEMECHANGED) {
    refreshControls();
    return {};
  }
  NativeControl* control = NativeControl::find(*this, reinterpret_cast<HWND>(message.lParam));
  if (!control) return {};
  return reinterpret_cast<LRESULT>(control->prepareColors(reinterpret_cast<HDC>(message.wParam)));
}

std::optional<LRESULT> Window::takeClosing(const Message& message) {
  if (message.id == WM_CLOSE) {
    requestClose();
  } else if (message.wParam) {
    desktop().endSession();
  }
  return 0;
}

}  // namespace win32
