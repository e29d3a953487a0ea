#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <string_view>

namespace win32 {

/// A text value of less than 1024 characters under the machine's root, expanded if it is
/// expandable, or a double word as decimal text.
std::optional<std::string> readMachineValue(std::string_view key, std::string_view name);

/// A text value of an open key up to its first zero, expanded if it is expandable; null if it is
/// absent or of another type.
std::optional<std::wstring> readText(HKEY key, const std::wstring& name);

}  // namespace win32
