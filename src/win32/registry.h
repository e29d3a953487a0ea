#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <string_view>

namespace win32 {

/// A text value of less than 1024 characters under the machine's root, or a double word in its
/// decimal text.
std::optional<std::string> readMachineValue(std::string_view key, std::string_view name);

/// A value of an open key as it stands; nothing when it is absent or of another type.
std::optional<std::wstring> readText(HKEY key, const std::wstring& name);

}  // namespace win32
