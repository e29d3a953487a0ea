#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace support {

/// The text on the clipboard as any other program sees it; null without one. `owner` is a window of
/// this thread. Throws NotSeen while another program keeps the clipboard locked.
std::optional<std::wstring> clipboardText(HWND owner = nullptr);
/// Null empties it.
void setClipboardText(const std::optional<std::wstring>& text, HWND owner = nullptr);

}  // namespace support
