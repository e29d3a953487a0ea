#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace support {

/// Opens the clipboard for a window of its own, without which nothing can be put on it. Throws
/// NotSeen while another program keeps the clipboard locked, as do the functions below.
class OpenedClipboard {
 public:
  OpenedClipboard();
  ~OpenedClipboard();
  OpenedClipboard(const OpenedClipboard&) = delete;
  OpenedClipboard& operator=(const OpenedClipboard&) = delete;

  /// Puts a copy of the data on it, beside the other formats.
  void put(UINT format, const void* data, std::size_t size) const;

 private:
  HWND window_;
};

/// The text on the clipboard as any other program sees it; null without one.
std::optional<std::wstring> clipboardText();
/// Null empties it.
void setClipboardText(const std::optional<std::wstring>& text);

}  // namespace support
