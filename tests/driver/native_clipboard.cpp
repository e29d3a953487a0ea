#include "driver/native_clipboard.h"

#include <algorithm>

#include "driver/command.h"
#include "win32/text.h"

namespace driver {

namespace {

constexpr int kTries = 200;

/// The clipboard while it is open here. Another program may have it open for a moment.
class OpenedClipboard {
 public:
  explicit OpenedClipboard(HWND owner) {
    for (int i = 0; !OpenClipboard(owner); ++i) {
      if (i == kTries) throw CommandError("another program keeps the clipboard");
      Sleep(5);
    }
  }
  ~OpenedClipboard() { CloseClipboard(); }
  OpenedClipboard(const OpenedClipboard&) = delete;
  OpenedClipboard& operator=(const OpenedClipboard&) = delete;
};

}  // namespace

std::optional<std::string> readClipboard(HWND owner) {
  const OpenedClipboard opened(owner);
  const HANDLE memory = GetClipboardData(CF_UNICODETEXT);
  if (!memory) return {};
  const auto* text = static_cast<const wchar_t*>(GlobalLock(memory));
  if (!text) return {};
  std::string result = win32::narrow(text);
  GlobalUnlock(memory);
  return result;
}

void writeClipboard(HWND owner, const std::optional<std::string>& text) {
  const OpenedClipboard opened(owner);
  EmptyClipboard();
  if (!text) return;
  const std::wstring wide = win32::wide(*text);
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (wide.size() + 1) * sizeof(wchar_t));
  std::copy_n(wide.c_str(), wide.size() + 1, static_cast<wchar_t*>(GlobalLock(memory)));
  GlobalUnlock(memory);
  SetClipboardData(CF_UNICODETEXT, memory);
}

}  // namespace driver
