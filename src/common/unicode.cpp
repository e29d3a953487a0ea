#include "common/unicode.h"

namespace common {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

// Whether a number stands for a character: none beyond the last one does, and no surrogate.
bool isCharacter(char32_t number) {
  return number < 0xD800 || (number > 0xDFFF && number <= 0x10FFFF);
}

bool isContinuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

// Returns the character at `at`, and moves `at` past it.
char32_t decode(std::string_view text, std::size_t& at) {
  const auto first = static_cast<unsigned char>(text[at++]);
  if (first < 0x80) return first;
  if (first < 0xC0 || first > 0xF4) return kReplacement;
  const int length = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
  char32_t character = first & (0x3Fu >> length);
  for (int i = 0; i < length; ++i) {
    if (at == text.size() || !isContinuation(text[at])) return kReplacement;
    character = character << 6 | (static_cast<unsigned char>(text[at++]) & 0x3Fu);
  }
  constexpr char32_t kSmallest[] = {0x80, 0x800, 0x10000};
  return character < kSmallest[length - 1] || !isCharacter(character) ? kReplacement : character;
}

void encode(char32_t character, std::string& text) {
  if (!isCharacter(character)) character = kReplacement;
  const auto put = [&](char32_t byte) { text += static_cast<char>(byte); };
  if (character < 0x80) {
    put(character);
  } else if (character < 0x800) {
    put(0xC0 | character >> 6);
    put(0x80 | (character & 0x3F));
  } else if (character < 0x10000) {
    put(0xE0 | character >> 12);
    put(0x80 | (character >> 6 & 0x3F));
    put(0x80 | (character & 0x3F));
  } else {
    put(0xF0 | character >> 18);
    put(0x80 | (character >> 12 & 0x3F));
    put(0x80 | (character >> 6 & 0x3F));
    put(0x80 | (character & 0x3F));
  }
}

}  // namespace

std::u16string toUtf16(std::string_view text) {
  std::u16string result;
  for (std::size_t at = 0; at < text.size();) {
    const char32_t character = decode(text, at);
    if (character < 0x10000) {
      result += static_cast<char16_t>(character);
    } else {
      result += static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
      result += static_cast<char16_t>(0xDC00 + (character & 0x3FF));
    }
  }
  return result;
}

std::string toUtf8(std::u16string_view text) {
  std::string result;
  for (std::size_t at = 0; at < text.size(); ++at) {
    char32_t character = text[at];
    if (isHighSurrogate(text[at]) && at + 1 < text.size() && isLowSurrogate(text[at + 1])) {
      character = characterOfPair(text[at], text[at + 1]);
      ++at;
    }
    encode(character, result);
  }
  return result;
}

std::string toUtf8(char32_t character) {
  std::string result;
  encode(character, result);
  return result;
}

}  // namespace common
