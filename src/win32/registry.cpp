#include "win32/registry.h"

#include <cwchar>
#include <utility>

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

std::wstring upToZero(std::wstring text) {
  text.resize(wcsnlen(text.data(), text.size()));
  return text;
}

// With the values of the environment variables that the text names.
std::wstring expanded(const std::wstring& text) {
  const DWORD length = ExpandEnvironmentStringsW(text.c_str(), nullptr, 0);
  std::wstring result(length, L'\0');
  ExpandEnvironmentStringsW(text.c_str(), result.data(), length);
  return upToZero(std::move(result));
}

}  // namespace

std::optional<std::wstring> readText(HKEY key, const std::wstring& name) {
  constexpr DWORD kTexts = RRF_RT_REG_SZ | RRF_RT_REG_EXPAND_SZ;
  std::wstring text;
  DWORD type = REG_NONE;
  LSTATUS status = ERROR_MORE_DATA;
  for (DWORD size = kUsualText * sizeof(wchar_t); status == ERROR_MORE_DATA;) {
    text.resize(size / sizeof(wchar_t) + 1);
    size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
    // Wine would write an expanded text beyond the end of the buffer.
    status =
        RegGetValueW(key, nullptr, name.c_str(), kTexts | RRF_NOEXPAND, &type, text.data(), &size);
  }
  if (status != ERROR_SUCCESS) return {};
  text = upToZero(std::move(text));
  return type == REG_EXPAND_SZ ? expanded(text) : text;
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
