#include "controls/number_field.h"

#include <algorithm>
#include <iterator>

#include "common/unicode.h"

namespace controls {

void NumberField::rewrite(std::string_view text, int caret) {
  if (text == box_.text()) return;
  box_.setText(text);
  // A digit typed before the sign would be lost.
  box_.setSelStart(std::max(caret, text.starts_with('-') ? 1 : 0));
}

void NumberField::reformat(std::string_view text) {
  const int caret = box_.selStart();
  const int moved = caret + static_cast<int>(common::toUtf16(text).size()) - box_.length();
  const bool cutAtTheEnd = moved < 0 || box_.text().starts_with(text);
  rewrite(text, cutAtTheEnd ? caret : moved);
}

void NumberField::stepOverSeparator() {
  const int caret = box_.selStart();
  if (caret == 0 || box_.selLength() > 0) return;
  if (common::toUtf16(box_.text())[static_cast<std::size_t>(caret) - 1] == u',')
    box_.setSelStart(caret - 1);
}

void NumberField::repairSign() {
  const std::string text = box_.text();
  if (text.find('-') != std::string::npos && !text.starts_with('-')) dropFirstCharacter();
}

void NumberField::dropLeadingCommas() {
  const std::string text = box_.text();
  const auto commas = std::min(text.find_first_not_of(','), text.size());
  rewrite(std::string_view(text).substr(commas), box_.selStart() - static_cast<int>(commas));
}

void NumberField::dropSeparatorsBehindPoint() {
  const std::u16string text = common::toUtf16(box_.text());
  const std::size_t point = std::min(text.find(u'.'), text.size());
  const auto caret = static_cast<std::size_t>(box_.selStart());
  const auto behindPoint = text.begin() + static_cast<std::ptrdiff_t>(point);
  const auto atCaret = text.begin() + static_cast<std::ptrdiff_t>(std::max(caret, point));
  const auto passed = std::count(behindPoint, atCaret, u',');
  std::u16string kept = text.substr(0, point);
  std::copy_if(behindPoint, text.end(), std::back_inserter(kept),
               [](char16_t character) { return character != u','; });
  rewrite(common::toUtf8(kept), static_cast<int>(caret) - static_cast<int>(passed));
}

// A surrogate pair takes two positions.
void NumberField::dropFirstCharacter() {
  const std::u16string text = common::toUtf16(box_.text());
  const std::size_t places = common::isHighSurrogate(text[0]) ? 2 : 1;
  rewrite(common::toUtf8(std::u16string_view(text).substr(places)),
          box_.selStart() - static_cast<int>(places));
}

}  // namespace controls
