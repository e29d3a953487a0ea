#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>

#include "controls/control.h"
#include "win32/handles.h"
#include "win32/key_style.h"

namespace win32 {

class Window;

/// The name of a button for the system and screen readers, where its caption or symbol does not say
/// what it does, and else that caption or symbol.
std::wstring keyName(const controls::ControlLayout& layout, std::string_view caption);

/// Draws a button: its shape in the colors of its kind, and on it the caption, a symbol or an icon.
class KeyFace {
 public:
  KeyFace(Window& frame, const controls::Control& key);

  /// The resolution or the system colors have changed.
  void refresh();
  /// A key that is down, or that confirms a click with a check mark instead of its face, has the
  /// colors of a pressed toggle.
  enum class Shows { Key, KeyDown, CheckMark };
  /// Draws it in place of the native button.
  LRESULT draw(const NMCUSTOMDRAW& draw, Shows shows) const;

 private:
  std::wstring text() const;
  void drawShape(const NMCUSTOMDRAW& draw, const KeyState& state, const KeyColors& colors) const;
  UINT textFormat(HWND button) const;
  void drawText(const NMCUSTOMDRAW& draw, COLORREF color) const;
  void drawIcon(const NMCUSTOMDRAW& draw) const;
  void drawCheckMark(const NMCUSTOMDRAW& draw, COLORREF color) const;
  int iconSize() const;

  Window& frame_;
  const controls::Control& key_;
  std::wstring face_;
  // Owned by the frame; has every character of the face.
  HFONT font_ = nullptr;
  OwnedIcon icon_;
};

}  // namespace win32
