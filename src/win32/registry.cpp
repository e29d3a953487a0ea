#include "win32/registry.h"

#include <algorithm>
#include <cwchar>

#include "win32/handles.h"
#include "win32/text.h"

namespace win32 {
namespace {

// The longest text that is read, including the zero. No program path is longer.
constexpr std::size_t kLongestText = 1024;

// The room for a text at the first try, including the zero: almost every text fits.
constexpr std::size_t kUsualText = 64;

constexpr REGSAM kReadAndWrite = KEY_READ | KEY_WRITE | KEY_CREATE_LINK;
static_assert(kReadAndWrite == 0x2003F);

// Full access first; a user who is not an administrator can only read.
OwnedKey openMachineKey(const std::wstring& path) {
  HKEY key = nullptr;
  for (const REGSAM access : {kReadAndWrite, REGSAM{KEY_READ}}) {
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, access, &key) == ERROR_SUCCESS)
      return OwnedKey(key);
  }
  return nullptr;
}

std::optional<DWORD> readDoubleWord(HKEY key, const std::wstring& name) {
  DWORD value = 0;
  DWORD size = sizeof value;
  if (RegGetValueW(key, nullptr, name.c_str(), RRF_RT_REG_DWORD, nullptr, &value, &size) !=
      ERROR_SUCCESS)
    return {};
  return value;
}

}  // namespace

std::optional<std::wstring> readText(HKEY key, const std::wstring& name) {
  std::wstring text;
  LSTATUS status = ERROR_MORE_DATA;
  for (DWORD size = kUsualText * sizeof(wchar_t); status == ERROR_MORE_DATA;) {
    text.resize(size / sizeof(wchar_t) + 1);
    size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
    // This also matches an expandable value, which is expanded.
    status = RegGetValueW(key, nullptr, name.c_str(), RRF_RT_REG_SZ, nullptr, text.data(), &size);
    // The size returned is that of the stored text, not of the expanded one.
    if (status == ERROR_MORE_DATA)
      size = std::max(size, static_cast<DWORD>(2 * text.size() * sizeof(wchar_t)));
  }
  if (status != ERROR_SUCCESS) return {};
  text.resize(wcsnlen(text.data(), text.size()));
  return text;
}

std::optional<std::string> readMachineValue(std::string_view key, std::string_view name) {
  const OwnedKey open = openMachineKey(wide(key));
  if (!open) return {};
  const std::wstring wideName = wide(name);
  if (const auto text = readText(open.get(), wideName)) {
    if (text->size() >= kLongestText) return {};
    return narrow(*text);
  }
  // Read as a signed number.
  if (const auto number = readDoubleWord(open.get(), wideName))
    return std::to_string(static_cast<std::int32_t>(*number));
  return {};
}

}  // namespace win32
