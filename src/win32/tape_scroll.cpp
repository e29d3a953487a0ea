#include <algorithm>

#include "win32/tape_view.h"

// Scrolling the tape, and its scroll bars.
namespace win32 {

using controls::Alignment;

namespace {

// With fewer lines, a horizontal bar would take up a line that is needed more.
constexpr int kLeastLinesAboveBar = 4;

}  // namespace

void TapeView::scrollTo(int firstLine) {
  firstLine_ = std::clamp(firstLine, 0, lastFirstLine());
  refresh();
}

void TapeView::scrollSideways(int columns) {
  shiftTo(shift_ + columns * letters_.cell());
}

void TapeView::shiftTo(int shift) {
  shift_ = shift;
  refresh();
}

// How much the longest line is wider than the window.
int TapeView::overflow() const {
  const RECT area = textArea();
  const int room = static_cast<int>(area.right - area.left) - kCaretWidth;
  return std::max(0, lines_.columns() * letters_.cell() - room);
}

void TapeView::keepInView() {
  const int most = overflow();
  shift_ =
      alignment_ == Alignment::Left ? std::clamp(shift_, 0, most) : std::clamp(shift_, -most, 0);
}

// Lines printed by the machine fit beside a bar, or almost.
bool TapeView::needsSidewaysBar() const {
  if (lines_.columns() <= columns_ || overflow() == 0) return false;
  const int bar = sidewaysBar_.last > 0 ? GetSystemMetrics(SM_CYHSCROLL) : 0;
  const int height = static_cast<int>(clientArea().bottom) + bar;
  return height >= kLeastLinesAboveBar * letters_.lineHeight() + GetSystemMetrics(SM_CYHSCROLL);
}

// Padded lines use the space of the scroll bar until there is something to scroll. Right-aligned
// digits would jump then, so with them the bar is always visible.
void TapeView::updateScrollBars() {
  ScrollBar sideways;
  if (needsSidewaysBar()) {
    const RECT area = textArea();
    const int most = overflow();
    sideways.page = std::max(1L, area.right - area.left);
    sideways.last = most + sideways.page - 1;
    sideways.position = alignment_ == Alignment::Left ? shift_ : most + shift_;
  }
  updateScrollBar(SB_HORZ, sidewaysBar_, sideways);
  const int page = linesInView();
  updateScrollBar(SB_VERT, downBar_,
                  {alignment_ == Alignment::Right, lines_.count() - 1, page, firstLine_});
}

// The system repaints the whole scroll bar for each call, even without a change.
void TapeView::updateScrollBar(int bar, ScrollBar& shown, const ScrollBar& wanted) {
  if (shown == wanted) return;
  const bool comesBack = wanted.always && !shown.always;
  shown = wanted;
  if (comesBack) ShowScrollBar(window_, bar, TRUE);
  SCROLLINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
  if (wanted.always) info.fMask |= SIF_DISABLENOSCROLL;
  info.nMax = std::max(0, wanted.last);
  info.nPage = static_cast<UINT>(wanted.page);
  info.nPos = wanted.position;
  SetScrollInfo(window_, bar, &info, TRUE);
}

void TapeView::takeScrollBar(int bar, int action) {
  SCROLLINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  GetScrollInfo(window_, bar, &info);
  const int step = bar == SB_VERT ? 1 : letters_.cell();
  const int page = bar == SB_VERT ? linesInView() : static_cast<int>(info.nPage);
  const int present = bar == SB_VERT ? firstLine_ : shift_;
  const int start = bar == SB_VERT || alignment_ == Alignment::Left ? 0 : -overflow();
  const auto go = [&](int place) { bar == SB_VERT ? scrollTo(place) : shiftTo(place); };
  switch (action) {
    case SB_LINEUP:
      return go(present - step);
    case SB_LINEDOWN:
      return go(present + step);
    case SB_PAGEUP:
      return go(present - page);
    case SB_PAGEDOWN:
      return go(present + page);
    case SB_TOP:
      return go(start);
    case SB_BOTTOM:
      return go(start + info.nMax);
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
      return go(start + info.nTrackPos);
    default:
      return;
  }
}

}  // namespace win32
