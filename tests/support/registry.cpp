#include "support/registry.h"

#include <windows.h>

namespace support {

std::optional<std::wstring> readUserText(const std::wstring& key, const std::wstring& name) {
  DWORD bytes = 0;
  if (RegGetValueW(HKEY_CURRENT_USER, key.c_str(), name.c_str(), RRF_RT_REG_SZ, nullptr, nullptr,
                   &bytes) != ERROR_SUCCESS)
    return {};
  std::wstring text(bytes / sizeof(wchar_t) + 1, L'\0');
  if (RegGetValueW(HKEY_CURRENT_USER, key.c_str(), name.c_str(), RRF_RT_REG_SZ, nullptr,
                   text.data(), &bytes) != ERROR_SUCCESS)
    return {};
  return text.c_str();
}

void writeUserText(const std::wstring& key, const std::wstring& name, const std::wstring& text) {
  RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), name.c_str(), REG_SZ, text.c_str(),
                  static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

}  // namespace support
