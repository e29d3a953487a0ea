#pragma once

#include <string>
#include <string_view>

namespace common {

/// Whether a UTF-16 unit is the first or the second half of a surrogate pair.
constexpr bool isHighSurrogate(char16_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}
constexpr bool isLowSurrogate(char16_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}
/// The character of the two halves of a surrogate pair.
constexpr char32_t characterOfPair(char16_t high, char16_t low) {
  return 0x10000u + ((high - 0xD800u) << 10) + (low - 0xDC00u);
}

/// UTF-8 to UTF-16 and back. Ill-formed input becomes the replacement character.
std::u16string toUtf16(std::string_view text);
std::string toUtf8(std::u16string_view text);
/// One character as UTF-8.
std::string toUtf8(char32_t character);

}  // namespace common
