#include "win32/key_face.h"

#include <windows.h>

#include <uxtheme.h>
#include <vssym32.h>

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

int themeState(const NMCUSTOMDRAW& draw, bool down) {
  if (has(draw, CDIS_DISABLED)) return PBS_DISABLED;
  if (down || has(draw, CDIS_SELECTED)) return PBS_PRESSED;
  return has(draw, CDIS_HOT) ? PBS_HOT : PBS_NORMAL;
}

UINT classicState(const NMCUSTOMDRAW& draw, bool down) {
  UINT state = DFCS_BUTTONPUSH;
  if (has(draw, CDIS_DISABLED)) state |= DFCS_INACTIVE;
  if (down || has(draw, CDIS_SELECTED)) state |= DFCS_PUSHED;
  return state;
}

// The system would fill a key that is down with a pattern on which, in high contrast, nobody can
// read. What is selected can be read in every scheme.
void drawClassicKey(const NMCUSTOMDRAW& draw, bool down) {
  RECT area = draw.rc;
  DrawFrameControl(draw.hdc, &area, DFC_BUTTON, classicState(draw, down));
  if (!down) return;
  InflateRect(&area, -GetSystemMetrics(SM_CXEDGE), -GetSystemMetrics(SM_CYEDGE));
  FillRect(draw.hdc, &area, GetSysColorBrush(COLOR_HIGHLIGHT));
}

}  // namespace

std::wstring keyName(const controls::ControlLayout& layout, std::string_view caption) {
  if (!layout.accessibleName.empty()) return wide(layout.accessibleName);
  return wide(layout.face.empty() ? caption : layout.face);
}

// A caption that is the name of its key is drawn by the system.
KeyFace::KeyFace(Window& frame, const controls::Control& key)
    : frame_(frame), key_(key), face_(wide(key.layout().face)) {
  if (face_.empty() && !key.layout().accessibleName.empty()) face_ = wide(key.caption());
  refresh();
}

void KeyFace::refresh() {
  if (!face_.empty()) font_ = frame_.fonts().fontShowing(key_.layout().font, face_);
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

LRESULT KeyFace::draw(const NMCUSTOMDRAW& draw, bool down) {
  if (draw.dwDrawStage == CDDS_PREPAINT) {
    if (!hasOwnFace()) return CDRF_NOTIFYPOSTPAINT;
    drawKey(draw, down);
    return CDRF_SKIPDEFAULT;
  }
  if (draw.dwDrawStage == CDDS_POSTPAINT) tint(draw);
  return CDRF_DODEFAULT;
}

void KeyFace::drawKey(const NMCUSTOMDRAW& draw, bool down) const {
  HTHEME theme = frame_.buttonTheme();
  const int state = themeState(draw, down);
  COLORREF textColor = theme ? textColorOn(key_.backColor()) : classicTextColor();
  if (has(draw, CDIS_DISABLED)) textColor = GetSysColor(COLOR_GRAYTEXT);
  RECT area = draw.rc;
  if (theme) {
    // A key has round corners, behind which the window is seen.
    FillRect(draw.hdc, &area, GetSysColorBrush(COLOR_BTNFACE));
    drawThemeBackground(theme, draw.hdc, BP_PUSHBUTTON, state, area);
    if (!isTinted()) getThemeColor(theme, BP_PUSHBUTTON, state, TMT_TEXTCOLOR, textColor);
  } else {
    drawClassicKey(draw, down);
    if (down) textColor = GetSysColor(COLOR_HIGHLIGHTTEXT);
  }
  tint(draw);
  if (icon_) {
    drawIcon(draw);
  } else {
    drawText(draw, textColor);
  }
  if (has(draw, CDIS_FOCUS)) drawFocus(draw);
}

void KeyFace::drawFocus(const NMCUSTOMDRAW& draw) {
  constexpr int kInset = 3;
  RECT inside = draw.rc;
  InflateRect(&inside, -kInset, -kInset);
  DrawFocusRect(draw.hdc, &inside);
}

// A face that is no caption shows each of its characters.
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
  DrawTextW(draw.hdc, face_.c_str(), -1, &needed, format | DT_CALCRECT);
  RECT area = draw.rc;
  area.top += std::max(0L, (area.bottom - area.top - needed.bottom) / 2);
  DrawTextW(draw.hdc, face_.c_str(), -1, &area, format);
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

bool KeyFace::isTinted() const {
  return key_.backColor() != controls::Color::buttonFace();
}

// A dark key stays dark under its colour; then its caption shows it.
COLORREF KeyFace::classicTextColor() const {
  if (!isTinted()) return textColorOn(key_.backColor());
  const COLORREF tinted = GetSysColor(COLOR_BTNFACE) & colorOf(key_.backColor());
  return isDark(tinted) ? colorOf(key_.backColor()) : RGB(0, 0, 0);
}

// The colour shines through what is drawn already: the style of the button stays, hot and pressed
// included.
void KeyFace::tint(const NMCUSTOMDRAW& draw) const {
  if (!isTinted()) return;
  constexpr DWORD kDestinationAndPattern = 0x00A000C9;
  RECT area = draw.rc;
  InflateRect(&area, -1, -1);
  const OwnedBrush brush(CreateSolidBrush(colorOf(key_.backColor())));
  const HGDIOBJ before = SelectObject(draw.hdc, brush.get());
  PatBlt(draw.hdc, area.left, area.top, area.right - area.left, area.bottom - area.top,
         kDestinationAndPattern);
  SelectObject(draw.hdc, before);
}

}  // namespace win32
