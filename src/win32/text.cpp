#include "win32/text.h"

#include "common/unicode.h"

namespace win32 {

std::wstring wide(std::string_view text) {
  const std::u16string units = common::toUtf16(text);
  return {units.begin(), units.end()};
}

std::string narrow(std::wstring_view text) {
  return common::toUtf8(std::u16string(text.begin(), text.end()));
}

}  // namespace win32
