#include "win32/text_input.h"

#include "win32/handles.h"
#include "win32/keys.h"
#include "win32/native_control.h"
#include "win32/text.h"

namespace win32 {
namespace {

using controls::BoxCommand;

void addItem(HMENU menu, BoxCommand command, const wchar_t* caption, bool enabled) {
  AppendMenuW(menu, static_cast<UINT>(enabled ? MF_ENABLED : MF_GRAYED),
              static_cast<UINT_PTR>(command), caption);
}

OwnedMenu makeMenu(const controls::TextBox& box) {
  OwnedMenu menu(CreatePopupMenu());
  const bool selected = box.selLength() > 0;
  addItem(menu.get(), BoxCommand::Undo, L"&Undo", box.canUndo());
  AppendMenuW(menu.get(), MF_SEPARATOR, 0, nullptr);
  addItem(menu.get(), BoxCommand::Cut, L"Cu&t", selected);
  addItem(menu.get(), BoxCommand::Copy, L"&Copy", selected);
  addItem(menu.get(), BoxCommand::Paste, L"&Paste", IsClipboardFormatAvailable(CF_UNICODETEXT));
  addItem(menu.get(), BoxCommand::Delete, L"&Delete", selected);
  AppendMenuW(menu.get(), MF_SEPARATOR, 0, nullptr);
  addItem(menu.get(), BoxCommand::SelectAll, L"Select &All", box.selLength() < box.length());
  return menu;
}

}  // namespace

std::optional<LRESULT> TextInput::take(const Message& message) {
  switch (message.id) {
    case WM_KEYDOWN:
      return takeKey(message.wParam);
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      // The focus moves first, so that the click places the caret even if a focus handler moves it.
      SetFocus(native_.handle());
      return {};
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
      SetFocus(native_.handle());
      return 0;
    case WM_RBUTTONUP:
    case WM_CONTEXTMENU:
      showMenu(menuPlace(message));
      return 0;
    case WM_SETTEXT:
    case EM_REPLACESEL:
      return takeText(message);
    case WM_CUT:
    case WM_COPY:
    case WM_PASTE:
    case WM_CLEAR:
    case WM_UNDO:
    case EM_UNDO:
    case EM_CANUNDO:
      return takeEdit(message);
    case WM_IME_STARTCOMPOSITION:
    case WM_IME_COMPOSITION:
    case WM_IME_ENDCOMPOSITION:
    case WM_IME_CHAR:
      // The native control would insert a composed text itself; this way it arrives as characters.
      return DefWindowProcW(native_.handle(), message.id, message.wParam, message.lParam);
    case WM_SYSCHAR:
      // Alt+Backspace, for which the native control would use its own undo.
      if (message.wParam != VK_BACK) return {};
      box_.undo();
      return 0;
    default:
      return {};
  }
}

std::optional<LRESULT> TextInput::takeKey(WPARAM key) {
  const controls::KeyStroke stroke{.key = static_cast<controls::KeyCode>(key),
                                   .shift = isDown(VK_SHIFT),
                                   .control = isDown(VK_CONTROL)};
  if (box_.takeEditKey(stroke)) return 0;
  // Keys that only move the caret go to the native control.
  const bool moves = (key >= VK_PRIOR && key <= VK_DOWN);
  return moves ? std::nullopt : std::optional<LRESULT>(0);
}

POINT TextInput::menuPlace(const Message& message) const {
  POINT place = mousePlace(message);
  if (message.id == WM_CONTEXTMENU) {
    if (message.lParam != -1) return place;
    RECT area;
    GetClientRect(native_.handle(), &area);
    place = {area.left, area.bottom};
  }
  ClientToScreen(native_.handle(), &place);
  return place;
}

void TextInput::showMenu(POINT screenPlace) {
  const OwnedMenu menu = makeMenu(box_);
  const BOOL chosen = TrackPopupMenu(menu.get(), TPM_RETURNCMD | TPM_RIGHTBUTTON, screenPlace.x,
                                     screenPlace.y, 0, native_.handle(), nullptr);
  box_.closeMenu(static_cast<BoxCommand>(chosen));
}

// A null text is empty.
LRESULT TextInput::takeText(const Message& message) {
  const auto* text = reinterpret_cast<const wchar_t*>(message.lParam);
  if (message.id == WM_SETTEXT) box_.selectAll();
  box_.replaceSelection(text ? narrow(text) : std::string());
  return message.id == WM_SETTEXT ? TRUE : 0;
}

std::optional<LRESULT> TextInput::takeEdit(const Message& message) {
  switch (message.id) {
    case WM_CUT:
      box_.cut();
      return 0;
    case WM_COPY:
      box_.copy();
      return 0;
    case WM_PASTE:
      box_.paste();
      return 0;
    case WM_CLEAR:
      box_.replaceSelection("");
      return 0;
    case EM_CANUNDO:
      return box_.canUndo();
    default:
      box_.undo();
      return TRUE;
  }
}

}  // namespace win32
