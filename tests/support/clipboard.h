#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace support {

/// The text on the clipboard as any other program has it; nothing when it holds none. Opened in the
/// name of `owner`, a window of this thread. Throws NotSeen while another program keeps it.
std::optional<std::wstring> clipboardText(HWND owner = nullptr);
/// Nothing empties it.
void setClipboardText(const std::optional<std::wstring>& text, HWND owner = nullptr);

}  // namespace support
