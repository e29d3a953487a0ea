#include "support/kept_clipboard.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <iterator>
#include <string_view>

#include "support/wait.h"

namespace support {
namespace {

/// Opens the clipboard for a window of its own, without which nothing can be put on it.
class OwnedClipboard {
 public:
  OwnedClipboard() {
    await("the clipboard", [this] { return OpenClipboard(window_) != FALSE; });
  }
  ~OwnedClipboard() {
    CloseClipboard();
    DestroyWindow(window_);
  }
  OwnedClipboard(const OwnedClipboard&) = delete;
  OwnedClipboard& operator=(const OwnedClipboard&) = delete;

 private:
  HWND window_ = CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                 nullptr, nullptr);
};

// Handles of other kinds than memory. The system makes a bitmap again from the copy in memory.
bool isDrawn(UINT format) {
  constexpr std::array kDrawn = {CF_BITMAP, CF_METAFILEPICT, CF_PALETTE, CF_ENHMETAFILE};
  return std::ranges::find(kDrawn, static_cast<int>(format)) != kDrawn.end() ||
         (format >= CF_OWNERDISPLAY && format <= CF_DSPENHMETAFILE) ||
         (format >= CF_PRIVATEFIRST && format <= CF_GDIOBJLAST);
}

// These lead to a program that has copied something; it has forgotten that by then.
bool isLink(UINT format) {
  wchar_t name[64] = L"";
  GetClipboardFormatNameW(format, name, static_cast<int>(std::size(name)));
  return name == std::wstring_view(L"DataObject") || name == std::wstring_view(L"Ole Private Data");
}

// The names put the formats in order.
RegistryValue formatValue(std::size_t place, UINT format, const void* data, std::size_t size) {
  std::wstring name = std::to_wstring(place);
  name = std::wstring(name.size() < 3 ? 3 - name.size() : 0, L'0') + name;
  const auto* bytes = static_cast<const BYTE*>(data);
  return {name + L" " + std::to_wstring(format), REG_BINARY, {bytes, bytes + size}};
}

}  // namespace

void writeClipboardTo(const RegistryKey& key) {
  const OwnedClipboard opened;
  std::size_t place = 0;
  for (UINT format = EnumClipboardFormats(0); format != 0; format = EnumClipboardFormats(format)) {
    const HANDLE memory = isDrawn(format) || isLink(format) ? nullptr : GetClipboardData(format);
    const void* data = memory ? GlobalLock(memory) : nullptr;
    if (!data) continue;
    if (!key.write(formatValue(++place, format, data, GlobalSize(memory))))
      std::fprintf(stderr, "A part of the clipboard is too large to be put back\n");
    GlobalUnlock(memory);
  }
}

void readClipboardFrom(const RegistryKey& key) {
  std::vector<RegistryValue> formats = key.values();
  std::ranges::sort(formats, {}, &RegistryValue::name);
  const OwnedClipboard opened;
  EmptyClipboard();
  for (const auto& [name, type, data] : formats) {
    const auto format = static_cast<UINT>(std::stoul(name.substr(name.find(L' '))));
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, data.size());
    if (!memory) continue;
    std::ranges::copy(data, static_cast<BYTE*>(GlobalLock(memory)));
    GlobalUnlock(memory);
    if (!SetClipboardData(format, memory)) GlobalFree(memory);
  }
}

}  // namespace support
