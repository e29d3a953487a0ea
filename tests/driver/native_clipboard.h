#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace driver {

/// The clipboard as any other program has it, in the name of `owner`, a window of this thread.
std::optional<std::string> readClipboard(HWND owner);
/// Nothing empties it.
void writeClipboard(HWND owner, const std::optional<std::string>& text);

}  // namespace driver
