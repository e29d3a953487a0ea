#include "desktop/program/user_settings.h"

#include <windows.h>

namespace program {

UserSettings::UserSettings(const std::wstring& programName)
    : root_(L"Software\\Tallyrex\\" + programName) {}

void UserSettings::clear() {
  RegDeleteTreeW(HKEY_CURRENT_USER, root_.c_str());
}

void UserSettings::write(const std::wstring& section, const std::wstring& key,
                         const std::wstring& text) {
  const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  RegSetKeyValueW(HKEY_CURRENT_USER, (root_ + L"\\" + section).c_str(), key.c_str(), REG_SZ,
                  text.c_str(), bytes);
}

std::optional<std::wstring> UserSettings::read(const std::wstring& section,
                                               const std::wstring& key) const {
  const std::wstring path = root_ + L"\\" + section;
  DWORD bytes = 0;
  if (RegGetValueW(HKEY_CURRENT_USER, path.c_str(), key.c_str(), RRF_RT_REG_SZ, nullptr, nullptr,
                   &bytes) != ERROR_SUCCESS)
    return {};
  std::wstring text(bytes / sizeof(wchar_t), L'\0');
  if (RegGetValueW(HKEY_CURRENT_USER, path.c_str(), key.c_str(), RRF_RT_REG_SZ, nullptr,
                   text.data(), &bytes) != ERROR_SUCCESS)
    return {};
  // Its size counts the zero behind the text.
  text.resize(bytes / sizeof(wchar_t) - 1);
  return text;
}

}  // namespace program
