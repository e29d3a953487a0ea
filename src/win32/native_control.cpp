#include "win32/native_control.h"

#include <cassert>
#include <utility>

#include "win32/colors.h"
#include "win32/desktop.h"
#include "win32/edge.h"
#include "win32/keys.h"
#include "win32/live_region.h"
#include "win32/text.h"

namespace win32 {
NativeControl::NativeControl(Window& frame, controls::Control& control, const NativeStyle& style)
    : frame_(frame), control_(control) {
  const RECT place = frame.scale().toPixels(control.bounds());
  const std::wstring text = style.text.empty() ? wide(control.caption()) : style.text;
  handle_ = CreateWindowExW(style.exStyle, style.windowClass, text.c_str(),
                            WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | style.style, place.left,
                            place.top, place.right - place.left, place.bottom - place.top,
                            frame.handle(), nullptr, GetModuleHandleW(nullptr), nullptr);
  assert(handle_);
  SetWindowLongPtrW(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  native_ = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrW(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(receive)));
  send(WM_SETFONT, reinterpret_cast<WPARAM>(frame.fonts().font(control.layout().font)));
}

NativeControl::~NativeControl() {
  if (handle_) DestroyWindow(handle_);
}

NativeControl& NativeControl::of(controls::Control& control) {
  return dynamic_cast<NativeControl&>(control);
}

// Its window procedure does not tell: an input method, a screen reader or a macro tool may have put
// its own in front of it.
NativeControl* NativeControl::find(const Window& frame, HWND handle) {
  for (const auto& control : frame.controls())
    if (of(*control).handle_ == handle) return &of(*control);
  return nullptr;
}

LRESULT CALLBACK NativeControl::receive(HWND handle, UINT id, WPARAM wParam, LPARAM lParam) {
  auto* control = reinterpret_cast<NativeControl*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
  const Message message{id, wParam, lParam};
  if (endsWindow(message) && control->frame_.isAlive()) return 0;
  if (id == WM_NCDESTROY) {
    const LRESULT result = control->passOn(message);
    control->handle_ = nullptr;
    return result;
  }
  control->frame_.toolTips().relay(handle, message);
  return atTheEdge(control->frame_.desktop().events(), [&] {
    const std::optional<LRESULT> result = control->take(message);
    return result ? *result : control->passOn(message);
  });
}

LRESULT NativeControl::passOn(const Message& message) {
  return CallWindowProcW(native_, handle_, message.id, message.wParam, message.lParam);
}

std::optional<LRESULT> NativeControl::take(const Message& message) {
  switch (message.id) {
    case WM_SETFOCUS: {
      const LRESULT result = passOn(message);
      frame_.focusControl(control_);
      return result;
    }
    case WM_GETOBJECT:
      if (control_.layout().spoken && !std::exchange(announced_, true)) announceSpoken(handle_);
      return {};
    case WM_NCPAINT:
      // Without an edge there is nothing to draw, but the system would spend time on it.
      if (!(GetWindowLongW(handle_, GWL_EXSTYLE) & WS_EX_CLIENTEDGE)) return 0;
      return {};
    case WM_KEYDOWN:
      // The native control does not act on keys by itself: their characters are handled.
      return 0;
    case WM_CHAR:
      control_.typeUnit(static_cast<char16_t>(message.wParam));
      return 0;
    case WM_KEYUP:
      if (!isModifier(message.wParam))
        control_.keyUp(static_cast<controls::KeyCode>(message.wParam));
      return DefWindowProcW(handle_, message.id, message.wParam, message.lParam);
    default:
      return {};
  }
}

std::wstring NativeControl::windowText() const {
  return wide(control_.caption());
}

HFONT NativeControl::font() {
  return frame_.fonts().font(control_.layout().font);
}

void NativeControl::putText() {
  SetWindowTextW(handle_, windowText().c_str());
}

void NativeControl::putPlace() {
  const RECT place = frame_.scale().toPixels(control_.bounds());
  SetWindowPos(handle_, nullptr, place.left, place.top, place.right - place.left,
               place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

void NativeControl::putVisible() {
  ShowWindow(handle_, control_.visible() ? SW_SHOWNA : SW_HIDE);
}

void NativeControl::putEnabled() {
  EnableWindow(handle_, control_.enabled());
}

void NativeControl::putBackColor() {
  background_.reset();
  InvalidateRect(handle_, nullptr, TRUE);
}

HBRUSH NativeControl::prepareColors(HDC context) {
  const COLORREF background = colorOf(control_.backColor());
  SetBkColor(context, background);
  SetTextColor(context, textColorOn(control_.backColor()));
  if (!background_) background_.reset(CreateSolidBrush(background));
  return background_.get();
}

void NativeControl::refresh() {
  background_.reset();
  send(WM_SETFONT, reinterpret_cast<WPARAM>(font()), TRUE);
  putPlace();
  InvalidateRect(handle_, nullptr, TRUE);
}

}  // namespace win32
