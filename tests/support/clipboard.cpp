#include "support/clipboard.h"

#include <cstring>

#include "support/wait.h"

namespace support {

OpenedClipboard::OpenedClipboard()
    : window_(CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr,
                              nullptr)) {
  await("the clipboard", [this] { return OpenClipboard(window_) != FALSE; });
}

OpenedClipboard::~OpenedClipboard() {
  CloseClipboard();
  DestroyWindow(window_);
}

void OpenedClipboard::put(UINT format, const void* data, std::size_t size) const {
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
  if (!memory) return;
  std::memcpy(GlobalLock(memory), data, size);
  GlobalUnlock(memory);
  if (!SetClipboardData(format, memory)) GlobalFree(memory);
}

std::optional<std::wstring> clipboardText() {
  const OpenedClipboard opened;
  const HANDLE memory = GetClipboardData(CF_UNICODETEXT);
  if (!memory) return {};
  const auto* text = static_cast<const wchar_t*>(GlobalLock(memory));
  if (!text) return {};
  std::wstring result = text;
  GlobalUnlock(memory);
  return result;
}

void setClipboardText(const std::optional<std::wstring>& text) {
  const OpenedClipboard opened;
  EmptyClipboard();
  if (text) opened.put(CF_UNICODETEXT, text->c_str(), (text->size() + 1) * sizeof(wchar_t));
}

}  // namespace support
