#include "win32/key_face.h"

#include <windows.h>

#include <algorithm>

#include "win32/colors.h"
#include "win32/light_icon.h"
#include "win32/text.h"
#include "win32/window.h"

namespace win32 {
namespace {

// The side of a button's picture, at 96 dots to the inch.
constexpr int kIconSize = 32;

bool has(const NMCUSTOMDRAW& draw, UINT state) {
  return (draw.uItemState & state) != 0;
}

KeyState stateOf(const NMCUSTOMDRAW& draw, bool down) {
  return {.disabled = has(draw, CDIS_DISABLED),
          .hot = has(draw, CDIS_HOT),
          .pressed = has(draw, CDIS_SELECTED),
          .down = down,
          .focused = has(draw, CDIS_FOCUS)};
}

}  // namespace

std::wstring keyName(const controls::ControlLayout& layout, std::string_view caption) {
  if (!layout.accessibleName.empty()) return wide(layout.accessibleName);
  return wide(layout.face.empty() ? caption : layout.face);
}

KeyFace::KeyFace(Window& frame, const controls::Control& key)
    : frame_(frame), key_(key), face_(wide(key.layout().face)) {
  refresh();
}

void KeyFace::refresh() {
  font_ = frame_.fonts().fontShowing(key_.layout().font, text());
  if (key_.layout().icon.empty()) return;
  const int size = iconSize();
  const std::wstring picture = L"KEY_" + wide(key_.layout().icon);
  icon_.reset(static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), picture.c_str(), IMAGE_ICON,
                                            size, size, LR_DEFAULTCOLOR)));
  if (icon_ && isDark(GetSysColor(COLOR_BTNFACE))) icon_ = lightened(icon_.get());
}

int KeyFace::iconSize() const {
  return MulDiv(kIconSize, frame_.scale().dpi(), 96);
}

// The caption can change.
std::wstring KeyFace::text() const {
  return face_.empty() ? wide(key_.caption()) : face_;
}

LRESULT KeyFace::draw(const NMCUSTOMDRAW& draw, Shows shows) const {
  if (draw.dwDrawStage != CDDS_PREPAINT) return CDRF_DODEFAULT;
  const KeyState state = stateOf(draw, shows != Shows::Key);
  const KeyColors colors = keyColors(key_.layout().keyKind, key_.backColor(), state);
  drawShape(draw, state, colors);
  if (shows == Shows::CheckMark) {
    drawCheckMark(draw, colors.text);
  } else if (icon_) {
    drawIcon(draw);
  } else {
    drawText(draw, colors.text);
  }
  return CDRF_SKIPDEFAULT;
}

// The focused key has a frame of two pixels in the highlight color, which a line separates from a
// face of any color.
void KeyFace::drawShape(const NMCUSTOMDRAW& draw, const KeyState& state,
                        const KeyColors& colors) const {
  constexpr controls::Twips kRadius = 60;
  const int line = std::max(1, frame_.scale().toPixels(controls::kTwipsPerPixel));
  std::vector<KeyLayer> layers;
  if (state.focused) {
    const COLORREF around = GetSysColor(COLOR_BTNFACE);
    layers = {{0, legibleOn(around, GetSysColor(COLOR_HIGHLIGHT), kFrameContrast)},
              {2 * line, around},
              {3 * line, colors.face}};
  } else {
    layers = {{0, colors.frame}, {line, colors.face}};
  }
  drawKeyShape(draw.hdc, draw.rc, frame_.scale().toPixels(kRadius), layers);
}

// In a face that is not the caption, & is a character.
UINT KeyFace::textFormat(HWND button) const {
  if (!key_.layout().face.empty()) return DT_CENTER | DT_NOPREFIX;
  const auto state = static_cast<UINT>(SendMessageW(button, WM_QUERYUISTATE, 0, 0));
  return (state & UISF_HIDEACCEL) != 0 ? DT_CENTER | DT_HIDEPREFIX : DT_CENTER;
}

void KeyFace::drawText(const NMCUSTOMDRAW& draw, COLORREF color) const {
  const HGDIOBJ before = SelectObject(draw.hdc, font_);
  SetBkMode(draw.hdc, TRANSPARENT);
  SetTextColor(draw.hdc, color);
  const UINT format = textFormat(draw.hdr.hwndFrom);
  RECT needed = {0, 0, draw.rc.right - draw.rc.left, 0};
  const std::wstring shown = text();
  DrawTextW(draw.hdc, shown.c_str(), -1, &needed, format | DT_CALCRECT);
  RECT area = draw.rc;
  area.top += std::max(0L, (area.bottom - area.top - needed.bottom) / 2);
  DrawTextW(draw.hdc, shown.c_str(), -1, &area, format);
  SelectObject(draw.hdc, before);
}

void KeyFace::drawIcon(const NMCUSTOMDRAW& draw) const {
  const int size = iconSize();
  const int left = draw.rc.left + (draw.rc.right - draw.rc.left - size) / 2;
  const int top = draw.rc.top + (draw.rc.bottom - draw.rc.top - size) / 2;
  if (has(draw, CDIS_DISABLED)) {
    DrawStateW(draw.hdc, nullptr, nullptr, reinterpret_cast<LPARAM>(icon_.get()), 0, left, top,
               size, size, DST_ICON | DSS_DISABLED);
  } else {
    DrawIconEx(draw.hdc, left, top, icon_.get(), size, size, 0, nullptr, DI_NORMAL);
  }
}

// It is as large as the icon that it replaces.
void KeyFace::drawCheckMark(const NMCUSTOMDRAW& draw, COLORREF color) const {
  const int size = iconSize();
  const LONG x = draw.rc.left + (draw.rc.right - draw.rc.left - size) / 2;
  const LONG y = draw.rc.top + (draw.rc.bottom - draw.rc.top - size) / 2;
  const POINT mark[] = {{x + size * 5 / 32, y + size * 17 / 32},
                        {x + size * 13 / 32, y + size * 25 / 32},
                        {x + size * 27 / 32, y + size * 8 / 32}};
  const Owned<HPEN, DeleteObject> pen(CreatePen(PS_SOLID, size / 8, color));
  const HGDIOBJ before = SelectObject(draw.hdc, pen.get());
  Polyline(draw.hdc, mark, 3);
  SelectObject(draw.hdc, before);
}

}  // namespace win32
