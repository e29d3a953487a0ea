#include "win32/clipboard.h"

#include <windows.h>

#include <cstring>

#include "win32/text.h"

namespace win32 {
namespace {

/// Opens the clipboard, which another program may lock for a moment.
class Clipboard {
 public:
  Clipboard() {
    constexpr int kAttempts = 25;
    constexpr DWORD kPause = 10;
    for (int attempt = 0; attempt < kAttempts && !open_; ++attempt) {
      if (attempt > 0) Sleep(kPause);
      open_ = OpenClipboard(owner());
    }
  }
  ~Clipboard() {
    if (open_) CloseClipboard();
  }
  Clipboard(const Clipboard&) = delete;
  Clipboard& operator=(const Clipboard&) = delete;

  bool isOpen() const { return open_; }

 private:
  // Without an owner, a clipboard accepts nothing after it has been emptied.
  static HWND owner() {
    static const HWND window = CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE,
                                               nullptr, GetModuleHandleW(nullptr), nullptr);
    return window;
  }

  BOOL open_ = FALSE;
};

}  // namespace

controls::Clipping readClipboard() {
  const Clipboard clipboard;
  if (!clipboard.isOpen()) return {controls::Clipping::Found::Locked, ""};
  const HANDLE data = GetClipboardData(CF_UNICODETEXT);
  if (!data) return {};
  const auto* text = static_cast<const wchar_t*>(GlobalLock(data));
  if (!text) return {};
  // The terminating zero may be missing.
  const std::wstring copy(text, wcsnlen(text, GlobalSize(data) / sizeof(wchar_t)));
  GlobalUnlock(data);
  return {controls::Clipping::Found::Text, narrow(copy)};
}

bool writeClipboard(std::string_view text) {
  const std::wstring units = wide(text);
  const std::size_t bytes = (units.size() + 1) * sizeof(wchar_t);
  const Clipboard clipboard;
  if (!clipboard.isOpen() || !EmptyClipboard()) return false;
  const HGLOBAL data = GlobalAlloc(GMEM_MOVEABLE, bytes);
  if (!data) return false;
  if (void* place = GlobalLock(data)) {
    std::memcpy(place, units.c_str(), bytes);
    GlobalUnlock(data);
    // The clipboard now owns the memory.
    if (SetClipboardData(CF_UNICODETEXT, data)) return true;
  }
  GlobalFree(data);
  return false;
}

}  // namespace win32
