#include "common/number_pattern.h"

#include <algorithm>
#include <utility>

#include "common/number_text.h"

namespace common {
namespace {

bool isPlaceholder(char character) {
  return character == '#' || character == '0';
}

// What a pattern asks for. Its integer part ends at the first point.
struct Shape {
  std::string_view integer;
  std::string_view fraction;
  bool hasPoint;
  bool grouped;
  long long integerPlaces;
  long long requiredIntegers;
  long long decimals;
  long long requiredDecimals;
  long long percentSigns;
};

Shape shapeOf(std::string_view pattern) {
  Shape shape = {};
  const std::size_t point = std::min(pattern.find('.'), pattern.size());
  shape.hasPoint = point < pattern.size();
  shape.integer = pattern.substr(0, point);
  shape.fraction = pattern.substr(shape.hasPoint ? point + 1 : point);
  shape.grouped = shape.integer.find(',') != std::string_view::npos;
  shape.percentSigns = std::ranges::count(pattern, '%');
  for (const char character : shape.integer) {
    if (!isPlaceholder(character)) continue;
    ++shape.integerPlaces;
    if (character == '0' || shape.requiredIntegers > 0) ++shape.requiredIntegers;
  }
  for (const char character : shape.fraction) {
    if (!isPlaceholder(character)) continue;
    ++shape.decimals;
    if (character == '0') shape.requiredDecimals = shape.decimals;
  }
  return shape;
}

void roundHalfAwayFromZero(Decimal& number, long long decimals) {
  const long long keep = number.point + decimals;
  if (std::cmp_greater_equal(keep, number.digits.size())) return;
  const bool up = keep >= 0 && number.digits[static_cast<std::size_t>(keep)] >= '5';
  cutDigits(number, static_cast<std::size_t>(std::max(keep, 0LL)), up);
}

// Writes one number in one shape.
class PatternWriter {
 public:
  PatternWriter(const Decimal& number, const Shape& shape) : number_(number), shape_(shape) {}

  std::string write() {
    writeInteger();
    if (shape_.hasPoint) text_ += '.';
    writeFraction();
    return std::move(text_);
  }

 private:
  void writeInteger() {
    long long place = shape_.integerPlaces;
    for (const char character : shape_.integer) {
      if (isPlaceholder(character)) {
        if (place == shape_.integerPlaces) writeDigitsInFrontOf(place);
        --place;
        if (place < std::max(number_.point, shape_.requiredIntegers)) writeIntegerDigit(place);
      } else if (character != ',') {
        text_ += character;
      }
    }
    if (shape_.integerPlaces == 0 && shape_.hasPoint) writeDigitsInFrontOf(0);
  }

  // A number may have more integer digits than the pattern has places; all of them are printed.
  void writeDigitsInFrontOf(long long places) {
    for (long long place = number_.point; place > places;) writeIntegerDigit(--place);
  }

  void writeIntegerDigit(long long place) {
    text_ += digitAt(number_.point - 1 - place);
    if (shape_.grouped && place > 0 && place % 3 == 0) text_ += ',';
  }

  void writeFraction() {
    const long long present = static_cast<long long>(number_.digits.size()) - number_.point;
    long long place = 0;
    for (const char character : shape_.fraction) {
      if (!isPlaceholder(character)) {
        text_ += character;
      } else if (place < std::max(present, shape_.requiredDecimals)) {
        text_ += digitAt(number_.point + place++);
      }
    }
  }

  char digitAt(long long index) const {
    const bool inside = index >= 0 && std::cmp_less(index, number_.digits.size());
    return inside ? number_.digits[static_cast<std::size_t>(index)] : '0';
  }

  const Decimal& number_;
  const Shape& shape_;
  std::string text_;
};

}  // namespace

std::string formatNumber(double value, std::string_view pattern) {
  const Shape shape = shapeOf(pattern);
  Decimal number = toDigits(value);
  number.point += 2 * shape.percentSigns;
  roundHalfAwayFromZero(number, shape.decimals);
  if (number.digits.empty()) number = {};
  const std::string sign(value < 0 && !number.digits.empty() ? 1 : 0, '-');
  return sign + PatternWriter(number, shape).write();
}

std::string formatText(std::string_view text, std::string_view pattern) {
  const auto number = tryNumber(text);
  return number ? formatNumber(*number, pattern) : std::string(text);
}

}  // namespace common
