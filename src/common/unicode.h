#pragma once

#include <string>
#include <string_view>

namespace common {

/// UTF-8 to UTF-16 and back. Ill-formed input becomes the replacement character.
std::u16string toUtf16(std::string_view text);
std::string toUtf8(std::u16string_view text);
/// One character as UTF-8.
std::string toUtf8(char32_t character);

}  // namespace common
