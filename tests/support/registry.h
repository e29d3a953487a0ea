#pragma once

#include <optional>
#include <string>

namespace support {

/// A text under the user's registry root; null if it does not exist.
std::optional<std::wstring> readUserText(const std::wstring& key, const std::wstring& name);
void writeUserText(const std::wstring& key, const std::wstring& name, const std::wstring& text);

}  // namespace support
