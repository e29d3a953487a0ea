#include "support/clipboard.h"

#include <algorithm>

#include "support/wait.h"

namespace support {
namespace {

/// Opens the clipboard, which another program may keep open for a moment.
class OpenedClipboard {
 public:
  explicit OpenedClipboard(HWND owner) {
    await("the clipboard", [owner] { return OpenClipboard(owner) != FALSE; });
  }
  ~OpenedClipboard() { CloseClipboard(); }
  OpenedClipboard(const OpenedClipboard&) = delete;
  OpenedClipboard& operator=(const OpenedClipboard&) = delete;
};

}  // namespace

std::optional<std::wstring> clipboardText(HWND owner) {
  const OpenedClipboard opened(owner);
  const HANDLE memory = GetClipboardData(CF_UNICODETEXT);
  if (!memory) return {};
  const auto* text = static_cast<const wchar_t*>(GlobalLock(memory));
  if (!text) return {};
  std::wstring result = text;
  GlobalUnlock(memory);
  return result;
}

void setClipboardText(const std::optional<std::wstring>& text, HWND owner) {
  const OpenedClipboard opened(owner);
  EmptyClipboard();
  if (!text) return;
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (text->size() + 1) * sizeof(wchar_t));
  std::copy_n(text->c_str(), text->size() + 1, static_cast<wchar_t*>(GlobalLock(memory)));
  GlobalUnlock(memory);
  SetClipboardData(CF_UNICODETEXT, memory);
}

}  // namespace support
