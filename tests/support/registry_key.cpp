#include "support/registry_key.h"

#include <cstring>

namespace support {
namespace {

// `next` is RegEnumValueW or RegEnumKeyExW.
template <class Next>
std::vector<std::wstring> namesIn(HKEY key, Next next) {
  constexpr DWORD kLongestName = 16'384;
  std::vector<std::wstring> names;
  std::wstring name(kLongestName, L'\0');
  DWORD length = kLongestName;
  for (DWORD i = 0;
       next(key, i, name.data(), &length, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
       ++i, length = kLongestName)
    names.push_back(name.substr(0, length));
  return names;
}

}  // namespace

RegistryValue registryNumber(const std::wstring& name, DWORD number) {
  RegistryValue value = {name, REG_DWORD, std::vector<BYTE>(sizeof number)};
  std::memcpy(value.data.data(), &number, sizeof number);
  return value;
}

RegistryValue registryText(const std::wstring& name, const std::wstring& text) {
  const auto* bytes = reinterpret_cast<const BYTE*>(text.c_str());
  return {name, REG_SZ, {bytes, bytes + (text.size() + 1) * sizeof(wchar_t)}};
}

RegistryKey RegistryKey::open(HKEY parent, const std::wstring& path, REGSAM access) {
  HKEY key = nullptr;
  RegOpenKeyExW(parent, path.c_str(), 0, access, &key);
  return RegistryKey(key);
}

RegistryKey RegistryKey::make(HKEY parent, const std::wstring& path, DWORD options) {
  HKEY key = nullptr;
  RegCreateKeyExW(parent, path.c_str(), 0, nullptr, options, KEY_READ | KEY_WRITE, nullptr, &key,
                  nullptr);
  return RegistryKey(key);
}

RegistryKey::~RegistryKey() {
  if (key_) RegCloseKey(key_);
}

bool RegistryKey::write(const RegistryValue& value) const {
  return RegSetValueExW(key_, value.name.c_str(), 0, value.type, value.data.data(),
                        static_cast<DWORD>(value.data.size())) == ERROR_SUCCESS;
}

std::optional<RegistryValue> RegistryKey::read(const std::wstring& name) const {
  RegistryValue value;
  value.name = name;
  DWORD size = 0;
  if (RegQueryValueExW(key_, name.c_str(), nullptr, &value.type, nullptr, &size) != ERROR_SUCCESS)
    return {};
  value.data.resize(size);
  RegQueryValueExW(key_, name.c_str(), nullptr, nullptr, value.data.data(), &size);
  return value;
}

DWORD RegistryKey::readNumber(const std::wstring& name) const {
  DWORD number = 0;
  DWORD size = sizeof number;
  RegGetValueW(key_, nullptr, name.c_str(), RRF_RT_REG_DWORD, nullptr, &number, &size);
  return number;
}

std::optional<std::wstring> RegistryKey::readText(const std::wstring& name) const {
  const auto value = read(name);
  if (!value || value->type != REG_SZ) return {};
  std::wstring text(value->data.size() / sizeof(wchar_t), L'\0');
  std::memcpy(text.data(), value->data.data(), text.size() * sizeof(wchar_t));
  return text.c_str();
}

std::vector<RegistryValue> RegistryKey::values() const {
  std::vector<RegistryValue> found;
  for (const std::wstring& name : namesIn(key_, RegEnumValueW))
    if (auto value = read(name)) found.push_back(std::move(*value));
  return found;
}

std::vector<std::wstring> RegistryKey::keys() const {
  return namesIn(key_, RegEnumKeyExW);
}

std::optional<std::wstring> readUserText(const std::wstring& key, const std::wstring& name) {
  return RegistryKey::open(HKEY_CURRENT_USER, key).readText(name);
}

void writeUserText(const std::wstring& key, const std::wstring& name, const std::wstring& text) {
  RegistryKey::make(HKEY_CURRENT_USER, key).write(registryText(name, text));
}

}  // namespace support
