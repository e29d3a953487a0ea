#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace win32 {

/// The clipboard's text; nothing when it holds none, or another program does not let go of it.
std::optional<std::string> readClipboard();
/// False when another program does not let go of the clipboard.
bool writeClipboard(std::string_view text);

}  // namespace win32
