#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>

#include "controls/control.h"
#include "win32/handles.h"
#include "win32/key_style.h"

namespace win32 {

class Window;

/// What the system and a screen reader know a button by: the words for it, where its caption,
/// symbol or picture does not say what it does.
std::wstring keyName(const controls::ControlLayout& layout, std::string_view caption);

/// What is seen of a button: its shape in the colours of its kind, and on it the caption, a symbol
/// or a picture.
class KeyFace {
 public:
  KeyFace(Window& frame, const controls::Control& key);

  /// The resolution or the system's colours have changed.
  void refresh();
  /// A key is drawn with its face; one that is down, or that confirms a click with a check mark,
  /// has the colors of a pressed toggle.
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
  // One of the frame's that shows the face.
  HFONT font_ = nullptr;
  OwnedIcon icon_;
};

}  // namespace win32
