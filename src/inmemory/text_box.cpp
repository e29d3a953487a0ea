#include "inmemory/text_box.h"

#include <algorithm>
#include <cassert>
#include <utility>

#include "common/unicode.h"

namespace inmemory {

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

int TextBox::caretAfter(KeyCode key) const {
  const bool oneLine = !layout().multiLine;
  switch (key) {
    case controls::kKeyHome:
      return lineStart(caret_);
    case controls::kKeyEnd:
      return lineEnd(caret_);
    case controls::kKeyUp:
      return oneLine ? caret_ - 1 : otherLine(caret_, true);
    case controls::kKeyDown:
      return oneLine ? caret_ + 1 : otherLine(caret_, false);
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

int TextBox::lineEnd(int place) const {
  if (!layout().multiLine) return loadLength();
  const auto found = text_.find(u'\r', static_cast<std::size_t>(place));
  return found == std::u16string::npos ? loadLength() : static_cast<int>(found);
}

int TextBox::otherLine(int place, bool up) const {
  const int column = place - lineStart(place);
  const int line = up ? lineStart(std::max(0, lineStart(place) - 2)) : lineEnd(place) + 2;
  if (up ? lineStart(place) == 0 : lineEnd(place) == loadLength()) return place;
  return std::min(line + column, lineEnd(line));
}

}  // namespace inmemory
