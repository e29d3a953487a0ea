#include <algorithm>

#include "win32/fitted_text.h"
#include "win32/ruler.h"
#include "win32/text_box.h"

// A native single-line box writes its line at the top, however high the box is. So its client area
// is made as high as the line, and the rest above and below belongs to its frame.
namespace win32 {

std::optional<LRESULT> TextBox::takeFrame(const Message& message) {
  switch (message.id) {
    case WM_NCCALCSIZE:
      return placeLine(message);
    case WM_NCPAINT: {
      const LRESULT result = passOn(message);
      paintBesideLine();
      return result;
    }
    case WM_NCHITTEST:
      return HTCLIENT;
    default:
      return {};
  }
}

// Centers the digits, which have no descenders.
LRESULT TextBox::placeLine(const Message& message) {
  if (!message.lParam) return 0;
  auto& area = *reinterpret_cast<RECT*>(message.lParam);
  const POINT corner = {area.left, area.top};
  const LRESULT result = passOn(message);
  area.right = std::max(area.left, area.right - cutOff_);
  inside_ = area;
  OffsetRect(&inside_, -corner.x, -corner.y);
  const TEXTMETRICW metrics = Ruler(reinterpret_cast<HFONT>(send(WM_GETFONT))).metrics();
  const LONG height = area.bottom - area.top;
  const LONG rest = std::max(0L, height - metrics.tmHeight);
  const LONG middleOfFigures = (metrics.tmAscent + metrics.tmInternalLeading) / 2;
  area.top += std::clamp(height / 2 - middleOfFigures, 0L, rest);
  area.bottom = std::min(area.bottom, area.top + metrics.tmHeight);
  return result;
}

// The line's position depends on the font and the window, whose changes the frame does not notice
// by itself.
void TextBox::putLine() {
  cutOff_ = cutOff();
  SetWindowPos(handle(), nullptr, 0, 0, 0, 0,
               SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void TextBox::paintBesideLine() {
  RECT line;
  RECT box;
  GetClientRect(handle(), &line);
  MapWindowPoints(handle(), nullptr, reinterpret_cast<POINT*>(&line), 2);
  GetWindowRect(handle(), &box);
  OffsetRect(&line, -box.left, -box.top);
  const HDC context = GetWindowDC(handle());
  ExcludeClipRect(context, line.left, line.top, line.right, line.bottom);
  FillRect(context, &inside_, prepareColors(context));
  ReleaseDC(handle(), context);
}

void TextBox::repaint() const {
  RedrawWindow(handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
}

// A box entirely outside the window is not cut off.
LONG TextBox::cutOff() const {
  const RECT box = frame().scale().toPixels(bounds());
  RECT window;
  GetClientRect(frame().handle(), &window);
  return box.left < window.right ? std::max(0L, box.right - window.right) : 0;
}

// Keeps the sign and the last digit of a number visible.
void TextBox::fitText() {
  constexpr int kCaret = 1;
  RECT line;
  send(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&line));
  const HFONT font = fittedFont(frame().fonts(), frame().scale(), layout().font, wideText(),
                                line.right - line.left - kCaret);
  if (reinterpret_cast<HFONT>(send(WM_GETFONT)) != font)
    send(WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

void TextBox::frameSized() {
  if (cutOff() == cutOff_) return;
  putLine();
  fitText();
}

void TextBox::showBounds() {
  Native::showBounds();
  putLine();
  fitText();
}

void TextBox::refresh() {
  Native::refresh();
  putLine();
  fitText();
  repaint();
}

void TextBox::showEnabled() {
  Native::showEnabled();
  repaint();
}

void TextBox::showBackColor() {
  Native::showBackColor();
  repaint();
}

}  // namespace win32
