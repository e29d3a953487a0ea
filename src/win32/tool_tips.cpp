#include "win32/tool_tips.h"

#include <windows.h>

#include <commctrl.h>

#include "win32/scale.h"
#include "win32/text.h"

namespace win32 {
namespace {

// Longer tips are wrapped.
constexpr controls::Twips kWidest = 4500;

}  // namespace

ToolTips::~ToolTips() {
  if (handle_) DestroyWindow(handle_);
}

// Without an owner: not every system can keep a window that owns another one on top.
void ToolTips::create() {
  handle_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0, 0,
                            0, 0, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
}

void ToolTips::add(HWND control, const std::string& text) {
  if (text.empty()) return;
  if (!handle_) create();
  SendMessageW(handle_, TTM_SETMAXTIPWIDTH, 0, Scale::of(control).toPixels(kWidest));
  std::wstring tip = wide(text);
  TTTOOLINFOW info = {};
  info.cbSize = sizeof info;
  info.uFlags = TTF_IDISHWND;
  info.hwnd = GetParent(control);
  info.uId = reinterpret_cast<UINT_PTR>(control);
  info.lpszText = tip.data();
  SendMessageW(handle_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&info));
}

void ToolTips::relay(HWND control, const Message& message) const {
  if (!handle_ || message.id < WM_MOUSEFIRST || message.id > WM_MOUSELAST) return;
  MSG mouse = {};
  mouse.hwnd = control;
  mouse.message = message.id;
  mouse.wParam = message.wParam;
  mouse.lParam = message.lParam;
  SendMessageW(handle_, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&mouse));
}

}  // namespace win32
