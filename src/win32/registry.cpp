#include "win32/registry.h"

#include <cstring>

#include "win32/handles.h"
#include "win32/text.h"

namespace win32 {
namespace {

// The longest text that is read, with the zero behind it. No path of a program is longer.
constexpr std::size_t kLongestText = 1024;

constexpr REGSAM kReadAndWrite = KEY_READ | KEY_WRITE | KEY_CREATE_LINK;
static_assert(kReadAndWrite == 0x2003F);

// Full access first; a user who is no administrator is given the value to read.
OwnedKey openMachineKey(const std::wstring& path) {
  HKEY key = nullptr;
  for (const REGSAM access : {kReadAndWrite, REGSAM{KEY_READ}}) {
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, access, &key) == ERROR_SUCCESS)
      return OwnedKey(key);
  }
  return nullptr;
}

std::optional<DWORD> readDoubleWord(HKEY key, const std::wstring& name) {
  DWORD type = 0;
  DWORD value = 0;
  DWORD size = sizeof value;
  const LSTATUS status =
      RegQueryValueExW(key, name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(&value), &size);
  if (status != ERROR_SUCCESS || type != REG_DWORD) return {};
  return value;
}

}  // namespace

std::optional<std::wstring> readText(HKEY key, const std::wstring& name) {
  DWORD type = 0;
  DWORD size = 0;
  if (RegQueryValueExW(key, name.c_str(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS ||
      type != REG_SZ)
    return {};
  std::wstring text(size / sizeof(wchar_t), L'\0');
  if (RegQueryValueExW(key, name.c_str(), nullptr, nullptr, reinterpret_cast<BYTE*>(text.data()),
                       &size) != ERROR_SUCCESS)
    return {};
  text.resize(size / sizeof(wchar_t));
  // A value may be stored without its terminating zero.
  if (!text.empty() && text.back() == L'\0') text.pop_back();
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
  // Read as a signed number, as the hexadecimal text of its bytes would be.
  if (const auto number = readDoubleWord(open.get(), wideName))
    return std::to_string(static_cast<std::int32_t>(*number));
  return {};
}

}  // namespace win32
