#pragma once

#include <optional>
#include <string>

namespace support {

/// A text under the user's root of the registry; nothing when it is not there.
std::optional<std::wstring> readUserText(const std::wstring& key, const std::wstring& name);
void writeUserText(const std::wstring& key, const std::wstring& name, const std::wstring& text);

}  // namespace support
