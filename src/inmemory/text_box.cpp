#include "inmemory/text_box.h"

#include <algorithm>
#include <cassert>
#include <utility>

#include "common/unicode.h"

namespace inmemory {

using controls::Alignment;
using controls::KeyCode;

namespace {

std::u16string_view part(const std::u16string& text, int start, int length) {
  assert(start >= 0 && length >= 0 && std::cmp_less_equal(start + length, text.size()));
  return std::u16string_view(text).substr(static_cast<std::size_t>(start),
                                          static_cast<std::size_t>(length));
}

}  // namespace

std::string TextBox::loadText() const {
  return common::toUtf8(text_);
}

std::string TextBox::loadPart(int start, int length) const {
  return common::toUtf8(part(text_, start, length));
}

TextBox::Selection TextBox::loadSelection() const {
  return {std::min(anchor_, caret_), std::abs(caret_ - anchor_)};
}

void TextBox::storeText(std::string_view text) {
  text_ = common::toUtf16(text);
}

void TextBox::storeAppended(std::string_view text) {
  text_ += common::toUtf16(text);
  anchor_ = caret_ = loadLength();
}

void TextBox::storeSelection(int start, int length) {
  anchor_ = start;
  caret_ = start + length;
}

void TextBox::storePart(int start, int length, std::string_view text) {
  text_.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(length),
                common::toUtf16(text));
}

void TextBox::pressKey(const controls::KeyStroke& stroke) {
  if (!takeEditKey(stroke) && controls::isNavigationKey(stroke.key))
    moveCaret(caretAfter(stroke.key), stroke.shift);
}

void TextBox::moveCaret(int caret, bool extend) {
  caret_ = std::clamp(caret, 0, loadLength());
  if (!extend) anchor_ = caret_;
}

int TextBox::caretAfter(KeyCode key) {
  const bool oneLine = !layout().multiLine;
  switch (key) {
    case controls::kKeyHome:
      return lineStart(caret_);
    case controls::kKeyEnd:
      return lineEnd(caret_);
    case controls::kKeyUp:
      return oneLine ? caret_ - 1 : otherLine(true);
    case controls::kKeyDown:
      return oneLine ? caret_ + 1 : otherLine(false);
    case controls::kKeyLeft:
      return caret_ >= 2 && part(text_, caret_ - 2, 2) == u"\r\n" ? caret_ - 2 : caret_ - 1;
    default:
      return part(text_, caret_, std::min(2, loadLength() - caret_)) == u"\r\n" ? caret_ + 2
                                                                                : caret_ + 1;
  }
}

int TextBox::lineStart(int place) const {
  if (!layout().multiLine || place == 0) return 0;
  const auto found = text_.rfind(u'\n', static_cast<std::size_t>(place) - 1);
  return found == std::u16string::npos ? 0 : static_cast<int>(found) + 1;
}

// A line feed ends a line, with the carriage return before it.
int TextBox::lineEnd(int place) const {
  if (isLastLine(place)) return loadLength();
  const int feed = nextLine(place) - 1;
  return feed > lineStart(place) && part(text_, feed - 1, 1) == u"\r" ? feed - 1 : feed;
}

bool TextBox::isLastLine(int place) const {
  return !layout().multiLine ||
         text_.find(u'\n', static_cast<std::size_t>(place)) == std::u16string::npos;
}

int TextBox::nextLine(int place) const {
  return static_cast<int>(text_.find(u'\n', static_cast<std::size_t>(place))) + 1;
}

// To the place above or below: columns count from the side that the lines are aligned with, and
// shorter lines in between do not change the preferred one.
int TextBox::otherLine(bool up) {
  const int wanted = goal_ && goal_->caret == caret_ ? goal_->column : column();
  int place = caret_;
  if (up ? lineStart(caret_) > 0 : !isLastLine(caret_)) {
    const int start = up ? lineStart(lineStart(caret_) - 1) : nextLine(caret_);
    const int end = lineEnd(start);
    place = std::clamp(alignment() == Alignment::Right ? end - wanted : start + wanted, start, end);
  }
  goal_ = {place, wanted};
  return place;
}

int TextBox::column() const {
  return alignment() == Alignment::Right ? lineEnd(caret_) - caret_ : caret_ - lineStart(caret_);
}

}  // namespace inmemory
