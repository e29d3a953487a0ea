#include "driver/native_screen.h"

#include <cmath>

#include "controls/desktop.h"
#include "driver/native_handles.h"
#include "support/windows.h"
#include "win32/text.h"
#include "win32/window.h"

namespace driver {

namespace {

using controls::ControlKind;

// Twips are rounded to pixels.
constexpr int kRounding = 1;

bool isNear(LONG seen, int meant) {
  return std::abs(seen - meant) <= kRounding;
}

std::string textOn(HWND window) {
  return win32::narrow(support::textOf(window));
}

bool hasStyle(HWND window, LONG_PTR style) {
  return (GetWindowLongPtrW(window, GWL_STYLE) & style) != 0;
}

bool isWhereMeant(HWND handle, const controls::Rect& bounds, const win32::Scale& scale) {
  RECT seen = {};
  GetWindowRect(handle, &seen);
  MapWindowPoints(nullptr, GetParent(handle), reinterpret_cast<POINT*>(&seen), 2);
  return isNear(seen.left, scale.toPixels(bounds.left)) &&
         isNear(seen.top, scale.toPixels(bounds.top)) &&
         isNear(seen.right - seen.left, scale.toPixels(bounds.width)) &&
         isNear(seen.bottom - seen.top, scale.toPixels(bounds.height));
}

bool showsValue(const controls::Control& control, HWND handle) {
  const bool checked = SendMessageW(handle, BM_GETCHECK, 0, 0) == BST_CHECKED;
  if (const auto* toggle = dynamic_cast<const controls::ToggleButton*>(&control))
    return checked == (toggle->value() == 1);
  if (const auto* option = dynamic_cast<const controls::OptionButton*>(&control))
    return checked == option->value();
  return true;
}

// The text of a key is its name for screen readers, which may say more than its face.
std::string nameOfKey(const controls::Control& key) {
  const controls::ControlLayout& layout = key.layout();
  const bool lit = key.backColor() != controls::Color::buttonFace();
  if (lit && !layout.litName.empty()) return std::string(layout.litName);
  if (!layout.accessibleName.empty()) return std::string(layout.accessibleName);
  return layout.face.empty() ? key.caption() : std::string(layout.face);
}

bool showsCaption(const controls::Control& control, HWND handle) {
  switch (control.kind()) {
    case ControlKind::TextBox:
      return true;
    case ControlKind::Button:
    case ControlKind::ToggleButton:
      // A key that speaks shows another text for a moment.
      return control.layout().spoken || textOn(handle) == nameOfKey(control);
    default:
      return textOn(handle) == control.caption();
  }
}

std::string differenceOf(controls::Control& control, const win32::Scale& scale) {
  HWND handle = handleOf(control);
  if (hasStyle(handle, WS_VISIBLE) != control.visible()) return "whether it is visible";
  if (hasStyle(handle, WS_DISABLED) == control.enabled()) return "whether it is enabled";
  if (!isWhereMeant(handle, control.bounds(), scale)) return "its place";
  if (!showsCaption(control, handle)) return "its caption";
  if (!showsValue(control, handle)) return "its value";
  if (control.focused() && GetForegroundWindow() == GetParent(handle) && GetFocus() != handle)
    return "the focus";
  return "";
}

bool showsState(const controls::Window& window, HWND handle) {
  using controls::WindowState;
  if (IsIconic(handle)) return window.state() == WindowState::Minimized;
  return (window.state() == WindowState::Maximized) == (IsZoomed(handle) != 0);
}

// The system makes no window larger, with its frame, whose height depends on the theme.
bool hasLength(LONG seen, int meant, LONG withFrame) {
  constexpr LONG kLargest = 32767;
  return isNear(seen, meant) || (withFrame == kLargest && seen < meant);
}

bool hasSize(const controls::Window& window, HWND handle, const win32::Scale& scale) {
  RECT client = {};
  GetClientRect(handle, &client);
  RECT frame = {};
  GetWindowRect(handle, &frame);
  const controls::Rect& bounds = window.bounds();
  return hasLength(client.right, scale.toPixels(bounds.width - controls::kFrameWidth),
                   frame.right - frame.left) &&
         hasLength(client.bottom, scale.toPixels(bounds.height - window.layout().frameHeight()),
                   frame.bottom - frame.top);
}

std::string differenceOfFrame(const win32::Window& window) {
  HWND handle = window.handle();
  if (textOn(handle) != window.caption()) return "its caption";
  if (hasStyle(handle, WS_VISIBLE) != window.visible()) return "whether it is visible";
  if (hasStyle(handle, WS_DISABLED) == window.enabled()) return "whether it is enabled";
  if (!showsState(window, handle)) return "its state";
  const bool onTop = (GetWindowLongPtrW(handle, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
  if (onTop != window.onTop()) return "whether it is on top";
  if (!IsIconic(handle) && !hasSize(window, handle, window.scale())) return "its size";
  return "";
}

std::string differenceOf(const controls::Window& window, const controls::MenuItem& item) {
  if (item.isSeparator()) return "";
  const auto [menu, position] = placeOf(window, item);
  const auto index = static_cast<UINT>(position);
  wchar_t text[128] = L"";
  GetMenuStringW(menu, index, text, static_cast<int>(std::size(text)), MF_BYPOSITION);
  const std::string shortcut = item.shortcut().empty() ? "" : "\t" + item.shortcut();
  if (win32::narrow(text) != item.caption() + shortcut) return "its caption";
  const UINT state = GetMenuState(menu, index, MF_BYPOSITION);
  if (((state & MF_GRAYED) == 0) != item.enabled()) return "whether it is enabled";
  if (((state & MF_CHECKED) != 0) != item.checked()) return "its check mark";
  return "";
}

}  // namespace

std::string differenceOnScreen(const controls::Window& window) {
  const auto& frame = dynamic_cast<const win32::Window&>(window);
  const auto named = [](const std::string& name, const std::string& difference) {
    return name + " shows wrongly " + difference;
  };
  if (const auto difference = differenceOfFrame(frame); !difference.empty())
    return named(window.name(), difference);
  for (const auto& control : window.controls())
    if (const auto difference = differenceOf(*control, frame.scale()); !difference.empty())
      return named(control->name(), difference);
  for (const auto& item : window.menuItems())
    if (const auto difference = differenceOf(window, *item); !difference.empty())
      return named(item->name(), difference);
  return "";
}

}  // namespace driver
