#include "win32/tape_view.h"

#include <algorithm>

namespace win32 {

using controls::Alignment;

void TapeView::replace(int start, int length, std::wstring_view text) {
  lines_.replace(start, length, text);
  select(start + static_cast<int>(text.size()), start + static_cast<int>(text.size()));
}

void TapeView::select(int anchor, int caret) {
  anchor_ = anchor;
  caret_ = caret;
  bringCaretIntoView();
  refresh();
  // As the system's own box does for screen readers.
  NotifyWinEvent(EVENT_OBJECT_TEXTSELECTIONCHANGED, window_, OBJID_CLIENT, CHILDID_SELF);
}

void TapeView::setAlignment(Alignment alignment) {
  alignment_ = alignment;
  shift_ = 0;
  bringCaretIntoView();
  refresh();
}

void TapeView::fitLetters(const Fonts& fonts, const controls::FontLayout& font, int columns,
                          int width) {
  constexpr int kLeastMargin = 1;
  columns_ = columns;
  letters_.fit(fonts, font, columns, width - 2 * kLeastMargin - kCaretWidth);
  const int spare = width - kCaretWidth - columns * letters_.cell();
  margin_ = std::clamp(spare / 2, kLeastMargin, std::max(kLeastMargin, letters_.cell() / 2));
  resize();
  if (hasCaret_) showCaret();
}

void TapeView::setColors(COLORREF background, COLORREF text) {
  ink_ = TapeInk::on(background, text);
  refresh();
}

// A window that grows shows earlier lines rather than empty space after the last; if the last line
// was visible, it stays visible.
void TapeView::resize() {
  const bool atEnd = firstLine_ + linesBefore_ >= lines_.count();
  linesBefore_ = linesInView();
  firstLine_ = atEnd ? lastFirstLine() : std::clamp(firstLine_, 0, lastFirstLine());
  refresh();
}

void TapeView::refresh() {
  keepInView();
  updateScrollBars();
  if (hasCaret_) placeCaret();
  if (IsWindowVisible(window_)) InvalidateRect(window_, nullptr, FALSE);
}

RECT TapeView::clientArea() const {
  RECT area;
  GetClientRect(window_, &area);
  return area;
}

RECT TapeView::textArea() const {
  RECT area = clientArea();
  InflateRect(&area, -margin_, 0);
  return area;
}

int TapeView::linesInView() const {
  return std::max(1, static_cast<int>(clientArea().bottom) / letters_.lineHeight());
}

int TapeView::lastFirstLine() const {
  return std::max(0, lines_.count() - linesInView());
}

void TapeView::bringCaretIntoView() {
  const int line = lines_.lineOf(caret_);
  firstLine_ = std::clamp(firstLine_, line - linesInView() + 1, line);
  firstLine_ = std::clamp(firstLine_, 0, lastFirstLine());
  // Without the focus, the view scrolls back to the aligned side.
  if (!hasCaret_) shift_ = 0;
  if (!hasCaret_) return;
  const RECT area = textArea();
  const int right = area.right - kCaretWidth;
  const int x = pointOf(caret_).x;
  if (x < area.left) {
    shift_ += x - area.left;
  } else if (x > right) {
    shift_ += x - right;
  }
}

int TapeView::leftOf(int line) const {
  const RECT area = textArea();
  if (alignment_ == Alignment::Left) return area.left - shift_;
  return area.right - kCaretWidth - letters_.widthOf(lines_.line(line)) - shift_;
}

POINT TapeView::pointOf(int place) const {
  const int line = lines_.lineOf(place);
  const int inLine = std::min(place, lines_.end(line)) - lines_.start(line);
  const int left = letters_.leftOf(lines_.line(line), static_cast<std::size_t>(inLine));
  return {leftOf(line) + left, (line - firstLine_) * letters_.lineHeight()};
}

int TapeView::placeAt(POINT point) const {
  const int y = point.y;
  const int below = y / letters_.lineHeight() - (y < 0 ? 1 : 0);
  const int line = std::clamp(firstLine_ + below, 0, lines_.count() - 1);
  const int x = std::max(0L, point.x - leftOf(line));
  const auto characters = static_cast<int>(letters_.charactersBefore(lines_.line(line), x));
  return lines_.whole(lines_.start(line) + characters);
}

void TapeView::placeCaret() const {
  const POINT point = pointOf(caret_);
  SetCaretPos(point.x, point.y);
}

void TapeView::showCaret() {
  hasCaret_ = true;
  CreateCaret(window_, nullptr, kCaretWidth, letters_.lineHeight());
  placeCaret();
  ShowCaret(window_);
  refresh();
}

void TapeView::hideCaret() {
  hasCaret_ = false;
  DestroyCaret();
  refresh();
}

}  // namespace win32
