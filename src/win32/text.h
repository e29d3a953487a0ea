#pragma once

#include <string>
#include <string_view>

namespace win32 {

/// UTF-8 of the program to UTF-16 of the system, and back.
std::wstring wide(std::string_view text);
std::string narrow(std::wstring_view text);

}  // namespace win32
