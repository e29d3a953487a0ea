#pragma once

#include <string>
#include <string_view>

namespace win32 {

/// The program's UTF-8 as the system's UTF-16, and back.
std::wstring wide(std::string_view text);
std::string narrow(std::wstring_view text);

}  // namespace win32
