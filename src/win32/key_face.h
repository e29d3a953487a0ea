#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>

#include "controls/control.h"
#include "win32/handles.h"

namespace win32 {

class Window;

/// What the system and a screen reader know a button by: the words for it, where its caption,
/// symbol or picture does not say what it does.
std::wstring keyName(const controls::ControlLayout& layout, std::string_view caption);

/// What is seen on a button that shows a short caption, a symbol or a picture in the place of its
/// name, or that has a colour. It is drawn in the system's own style.
class KeyFace {
 public:
  KeyFace(Window& frame, const controls::Control& key);

  /// The resolution or the system's colours have changed.
  void refresh();
  /// Draws what the native button does not; `down` is a toggle's.
  LRESULT draw(const NMCUSTOMDRAW& draw, bool down);

 private:
  bool hasOwnFace() const { return !face_.empty() || icon_; }
  void drawKey(const NMCUSTOMDRAW& draw, bool down) const;
  UINT textFormat(HWND button) const;
  void drawText(const NMCUSTOMDRAW& draw, COLORREF color) const;
  void drawIcon(const NMCUSTOMDRAW& draw) const;
  static void drawFocus(const NMCUSTOMDRAW& draw);
  bool isTinted() const;
  COLORREF classicTextColor() const;
  int iconSize() const;
  void tint(const NMCUSTOMDRAW& draw) const;

  Window& frame_;
  const controls::Control& key_;
  std::wstring face_;
  // One of the frame's that shows the face.
  HFONT font_ = nullptr;
  OwnedIcon icon_;
};

}  // namespace win32
