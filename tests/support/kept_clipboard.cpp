#include "support/kept_clipboard.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <iterator>
#include <string_view>

#include "support/clipboard.h"

namespace support {
namespace {

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
  const OpenedClipboard opened;
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
  const OpenedClipboard opened;
  EmptyClipboard();
  for (const auto& [name, type, data] : formats) {
    const auto format = static_cast<UINT>(std::stoul(name.substr(name.find(L' '))));
    opened.put(format, data.data(), data.size());
  }
}

}  // namespace support
