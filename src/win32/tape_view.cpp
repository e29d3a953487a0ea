#include "win32/tape_view.h"

#include <algorithm>

#include "win32/ruler.h"

namespace win32 {

using controls::Alignment;

namespace {

// Between the text and the edge, in pixels.
constexpr int kMargin = 1;
constexpr int kCaretWidth = 1;

}  // namespace

void TapeView::replace(int start, int length, std::wstring_view text) {
  lines_.replace(start, length, text);
  select(start + static_cast<int>(text.size()), start + static_cast<int>(text.size()));
}

void TapeView::select(int anchor, int caret) {
  anchor_ = anchor;
  caret_ = caret;
  bringCaretIntoView();
  refresh();
}

void TapeView::setAlignment(Alignment alignment) {
  alignment_ = alignment;
  bringCaretIntoView();
  refresh();
}

void TapeView::setFont(HFONT font) {
  font_ = font;
  const Ruler ruler(font);
  TEXTMETRICW metrics;
  GetTextMetricsW(ruler.context(), &metrics);
  lineHeight_ = std::max(1L, metrics.tmHeight + metrics.tmExternalLeading);
  if (hasCaret_) showCaret();
  resize();
}

void TapeView::setColors(COLORREF background, COLORREF text) {
  background_ = background;
  textColor_ = text;
  refresh();
}

// A window that grows shows what went before rather than nothing behind the last line.
void TapeView::resize() {
  firstLine_ = std::clamp(firstLine_, 0, std::max(0, lines_.count() - linesInView()));
  refresh();
}

void TapeView::refresh() {
  updateScrollBar();
  if (hasCaret_) placeCaret();
  InvalidateRect(window_, nullptr, FALSE);
}

RECT TapeView::clientArea() const {
  RECT area;
  GetClientRect(window_, &area);
  return area;
}

int TapeView::linesInView() const {
  return std::max(1, static_cast<int>(clientArea().bottom) / lineHeight_);
}

void TapeView::scrollTo(int firstLine) {
  firstLine_ = std::clamp(firstLine, 0, std::max(0, lines_.count() - linesInView()));
  refresh();
}

void TapeView::bringCaretIntoView() {
  const int line = lines_.lineOf(caret_);
  firstLine_ = std::clamp(firstLine_, line - linesInView() + 1, line);
  firstLine_ = std::clamp(firstLine_, 0, std::max(0, lines_.count() - linesInView()));
  shift_ = 0;
  // While nobody edits, the lines are read from their beginning.
  if (!hasCaret_) return;
  const int right = clientArea().right - kMargin - kCaretWidth;
  const int x = pointOf(caret_).x;
  if (x < kMargin) {
    shift_ = x - kMargin;
  } else if (x > right) {
    shift_ = x - right;
  }
}

// The system paints the whole scroll bar for each call, also when it says nothing new. A padded
// line needs the place of the bar, which comes when there is something to scroll; figures that
// stand at the right would jump then, and always have it beside them.
void TapeView::updateScrollBar() {
  const ScrollBar wanted = {alignment_ == Alignment::Right, lines_.count() - 1, linesInView(),
                            firstLine_};
  if (scrollBar_ == wanted) return;
  const bool comesBack = wanted.always && !scrollBar_.always;
  scrollBar_ = wanted;
  if (comesBack) ShowScrollBar(window_, SB_VERT, TRUE);
  SCROLLINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
  if (wanted.always) info.fMask |= SIF_DISABLENOSCROLL;
  info.nMax = wanted.last;
  info.nPage = static_cast<UINT>(wanted.page);
  info.nPos = wanted.position;
  SetScrollInfo(window_, SB_VERT, &info, TRUE);
}

void TapeView::takeScrollBar(int action) {
  SCROLLINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = SIF_TRACKPOS;
  GetScrollInfo(window_, SB_VERT, &info);
  switch (action) {
    case SB_LINEUP:
      return scrollTo(firstLine_ - 1);
    case SB_LINEDOWN:
      return scrollTo(firstLine_ + 1);
    case SB_PAGEUP:
      return scrollTo(firstLine_ - linesInView());
    case SB_PAGEDOWN:
      return scrollTo(firstLine_ + linesInView());
    case SB_TOP:
      return scrollTo(0);
    case SB_BOTTOM:
      return scrollTo(lines_.count());
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
      return scrollTo(info.nTrackPos);
    default:
      return;
  }
}

int TapeView::widthOf(std::wstring_view text) const {
  const Ruler ruler(font_);
  SIZE size = {};
  GetTextExtentPoint32W(ruler.context(), text.data(), static_cast<int>(text.size()), &size);
  return size.cx;
}

int TapeView::leftOf(int line) const {
  if (alignment_ == Alignment::Left) return kMargin - shift_;
  const int right = clientArea().right - kMargin - kCaretWidth;
  return right - widthOf(lines_.line(line)) - shift_;
}

POINT TapeView::pointOf(int place) const {
  const int line = lines_.lineOf(place);
  const int inLine = std::min(place, lines_.end(line)) - lines_.start(line);
  const int left = leftOf(line) + widthOf(lines_.part(lines_.start(line), inLine));
  return {left, (line - firstLine_) * lineHeight_};
}

int TapeView::placeAt(POINT point) const {
  const int below = static_cast<int>(point.y) / lineHeight_ - (point.y < 0 ? 1 : 0);
  const int line = std::clamp(firstLine_ + below, 0, lines_.count() - 1);
  const std::wstring_view text = lines_.line(line);
  const int x = std::max(0L, point.x - leftOf(line));
  const Ruler ruler(font_);
  int characters = 0;
  SIZE size = {};
  std::vector<int> ends(text.size() + 1);
  GetTextExtentExPointW(ruler.context(), text.data(), static_cast<int>(text.size()), x, &characters,
                        ends.data(), &size);
  if (characters == static_cast<int>(text.size())) return lines_.start(line) + characters;
  // A click on the right half of a character is one behind it.
  const auto hit = static_cast<std::size_t>(characters);
  const int before = hit == 0 ? 0 : ends[hit - 1];
  const int place = lines_.start(line) + characters;
  return 2 * x > before + ends[hit] ? lines_.next(place) : place;
}

void TapeView::paint(HDC context, const RECT& damaged) const {
  const RECT area = clientArea();
  const HGDIOBJ before = SelectObject(context, font_);
  for (int line = firstLine_; line < lines_.count(); ++line) {
    const LONG top = (line - firstLine_) * lineHeight_;
    if (top >= damaged.bottom) break;
    if (top + lineHeight_ > damaged.top)
      paintLine(context, line, {area.left, top, area.right, top + lineHeight_});
  }
  SetBkColor(context, background_);
  const LONG behind = std::max(0, lines_.count() - firstLine_) * lineHeight_;
  const RECT rest = {area.left, behind, area.right, area.bottom};
  ExtTextOutW(context, 0, 0, ETO_OPAQUE, &rest, nullptr, 0, nullptr);
  SelectObject(context, before);
}

void TapeView::paintLine(HDC context, int line, const RECT& area) const {
  const std::wstring_view text = lines_.line(line);
  const int left = leftOf(line);
  SetBkColor(context, background_);
  SetTextColor(context, textColor_);
  ExtTextOutW(context, left, area.top, ETO_OPAQUE | ETO_CLIPPED, &area, text.data(),
              static_cast<UINT>(text.size()), nullptr);
  const int from = std::max(selectionStart(), lines_.start(line));
  const int to = std::min(selectionEnd(), lines_.end(line));
  if (!hasCaret_ || from >= to) return;
  const int selectedLeft =
      left + widthOf(lines_.part(lines_.start(line), from - lines_.start(line)));
  const std::wstring_view selected = lines_.part(from, to - from);
  const RECT marked = {selectedLeft, area.top, selectedLeft + widthOf(selected), area.bottom};
  SetBkColor(context, GetSysColor(COLOR_HIGHLIGHT));
  SetTextColor(context, GetSysColor(COLOR_HIGHLIGHTTEXT));
  ExtTextOutW(context, selectedLeft, area.top, ETO_OPAQUE | ETO_CLIPPED, &marked, selected.data(),
              static_cast<UINT>(selected.size()), nullptr);
}

void TapeView::placeCaret() const {
  const POINT point = pointOf(caret_);
  SetCaretPos(point.x, point.y);
}

void TapeView::showCaret() {
  hasCaret_ = true;
  CreateCaret(window_, nullptr, kCaretWidth, lineHeight_);
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
