#include "win32/registry_settings.h"

#include "win32/handles.h"
#include "win32/registry.h"
#include "win32/text.h"

namespace win32 {

std::wstring RegistrySettings::path(std::string_view section) const {
  return wide(root_ + "\\" + std::string(section));
}

std::optional<std::string> RegistrySettings::read(std::string_view section,
                                                  std::string_view key) const {
  HKEY open = nullptr;
  if (RegOpenKeyExW(HKEY_CURRENT_USER, path(section).c_str(), 0, KEY_READ, &open) != ERROR_SUCCESS)
    return {};
  const OwnedKey owned(open);
  const auto text = readText(open, wide(key));
  if (!text) return {};
  return narrow(*text);
}

// Failures are ignored: the setting is then lost when the program ends.
void RegistrySettings::write(std::string_view section, std::string_view key,
                             std::string_view text) {
  HKEY open = nullptr;
  if (RegCreateKeyExW(HKEY_CURRENT_USER, path(section).c_str(), 0, nullptr, 0, KEY_WRITE, nullptr,
                      &open, nullptr) != ERROR_SUCCESS)
    return;
  const OwnedKey owned(open);
  const std::wstring value = wide(text);
  const auto bytes = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
  RegSetValueExW(open, wide(key).c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()),
                 bytes);
}

}  // namespace win32
