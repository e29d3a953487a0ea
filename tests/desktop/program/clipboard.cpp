#include "desktop/program/clipboard.h"

#include <windows.h>

#include <cstring>

#include "desktop/program/wait.h"

namespace program {
namespace {

// Another program may hold it for a moment.
void open() {
  await("the clipboard", [] { return OpenClipboard(nullptr) != FALSE; });
}

}  // namespace

std::wstring clipboardText() {
  open();
  std::wstring text;
  if (const HANDLE data = GetClipboardData(CF_UNICODETEXT)) {
    text = static_cast<const wchar_t*>(GlobalLock(data));
    GlobalUnlock(data);
  }
  CloseClipboard();
  return text;
}

void setClipboardText(const std::wstring& text) {
  const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
  const HGLOBAL data = GlobalAlloc(GMEM_MOVEABLE, bytes);
  std::memcpy(GlobalLock(data), text.c_str(), bytes);
  GlobalUnlock(data);
  open();
  EmptyClipboard();
  SetClipboardData(CF_UNICODETEXT, data);
  CloseClipboard();
}

}  // namespace program
