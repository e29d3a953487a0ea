#include <algorithm>

#include "common/number_text.h"
#include "common/unicode.h"
#include "engine/entry.h"

namespace engine {

namespace {

constexpr int kStationaryDigits = 15;

bool hasPoint(const std::string& text) {
  return text.find('.') != std::string::npos;
}

int charactersBehindPoint(const std::string& text) {
  return static_cast<int>(text.size() - text.find('.')) - 1;
}

// Leading zeros do not count: they are not part of the number.
int significantDigits(const std::u16string& text) {
  const auto first =
      std::ranges::find_if(text, [](char16_t c) { return c != u'0' && common::isDigit(c); });
  return static_cast<int>(std::count_if(first, text.end(), common::isDigit));
}

}  // namespace

bool Entry::accepts(controls::KeyAscii key) {
  if (isResult()) clear();
  const std::string text = box_.textWithoutSelection();
  if (decimals_.floating() || decimals_.places() > 0) {
    if (text.size() >= kEntryLength) return false;
    if (key == '.' && acceptsPoint(text)) {
      takePoint();
      return true;
    }
  }
  if (key == controls::kCtrlV) return true;
  return common::isDigit(key) && acceptsDigit(text, static_cast<char>(key));
}

void Entry::takePoint() {
  origin_ = isValue() ? Origin::ValueWithPoint : Origin::PointKeyed;
}

// In stationary decimal the visible point was not keyed.
bool Entry::acceptsPoint(const std::string& text) const {
  return !hasPoint(text) || (decimals_.stationary() && origin_ == Origin::Digits);
}

bool Entry::acceptsDigit(const std::string& text, char digit) const {
  const bool stationary = decimals_.stationary();
  const bool placed = !stationary || hasOwnPoint();
  if (!decimals_.floating() && placed && hasPoint(text) &&
      charactersBehindPoint(text) == decimals_.places())
    return false;
  if (stationary && !fitsBehindImpliedPoint(text, digit)) return false;
  return text.size() < kEntryLength;
}

bool Entry::fitsBehindImpliedPoint(const std::string& text, char digit) const {
  std::u16string typed = common::toUtf16(text);
  typed.insert(static_cast<std::size_t>(box_.selStart()), 1, static_cast<char16_t>(digit));
  return significantDigits(typed) <= kStationaryDigits;
}

}  // namespace engine
