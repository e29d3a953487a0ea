#include <algorithm>

#include "win32/tape_view.h"

// Painting the tape.
namespace win32 {

using controls::LineStyle;

namespace {

void fill(HDC context, const RECT& area, COLORREF color) {
  SetBkColor(context, color);
  ExtTextOutW(context, 0, 0, ETO_OPAQUE, &area, nullptr, 0, nullptr);
}

}  // namespace

void TapeView::paint(HDC context, const RECT& damaged) const {
  const RECT area = clientArea();
  SetBkMode(context, TRANSPARENT);
  const int height = letters_.lineHeight();
  for (int line = firstLine_; line < lines_.count(); ++line) {
    const LONG top = (line - firstLine_) * height;
    if (top >= damaged.bottom) break;
    if (top + height > damaged.top)
      paintLine(context, line, {area.left, top, area.right, top + height});
  }
  const LONG behind = std::max(0, lines_.count() - firstLine_) * height;
  fill(context, {area.left, behind, area.right, area.bottom}, ink_.background);
}

// Lines printed by the machine are short.
LineStyle TapeView::styleOf(int line) const {
  constexpr std::size_t kLongest = 64;
  return styleOfLine_(lines_.line(line).substr(0, kLongest));
}

void TapeView::paintLine(HDC context, int line, const RECT& area) const {
  fill(context, area, ink_.background);
  const LineStyle style = styleOf(line);
  SetTextColor(context, ink_.of(style));
  letters_.draw(context, {leftOf(line), area.top + letters_.spaceAbove()}, area, lines_.line(line),
                isTotal(style));
  if (ink_.rules && isTotal(style)) paintRule(context, line, area);
  paintSelection(context, line, area);
}

// A rule above the digits of a total, as below a column on paper.
void TapeView::paintRule(HDC context, int line, const RECT& area) const {
  const std::wstring_view text = lines_.line(line);
  const std::size_t start = text.find_first_not_of(L' ');
  const std::size_t end = text.find(L' ', start);
  const int left = leftOf(line);
  const LONG thickness = (letters_.spaceAbove() + 1) / 2;
  const RECT rule = {left + letters_.leftOf(text, start), area.top,
                     left + letters_.leftOf(text, end), area.top + thickness};
  fill(context, rule, ink_.of(styleOf(line)));
}

void TapeView::paintSelection(HDC context, int line, const RECT& area) const {
  const int from = std::max(selectionStart(), lines_.start(line));
  const int to = std::min(selectionEnd(), lines_.end(line));
  if (!hasCaret_ || from >= to) return;
  const RECT marked = {pointOf(from).x, area.top, pointOf(to).x, area.bottom};
  fill(context, marked, GetSysColor(COLOR_HIGHLIGHT));
  SetTextColor(context, GetSysColor(COLOR_HIGHLIGHTTEXT));
  letters_.draw(context, {leftOf(line), area.top + letters_.spaceAbove()}, marked,
                lines_.line(line), isTotal(styleOf(line)));
}

}  // namespace win32
