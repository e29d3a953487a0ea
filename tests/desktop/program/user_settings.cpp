#include "desktop/program/user_settings.h"

#include <windows.h>

#include "support/registry_key.h"

namespace program {

UserSettings::UserSettings(const std::wstring& programName)
    : root_(L"Software\\Tallyrex\\" + programName) {}

void UserSettings::clear() {
  RegDeleteTreeW(HKEY_CURRENT_USER, root_.c_str());
}

void UserSettings::write(const std::wstring& section, const std::wstring& key,
                         const std::wstring& text) {
  support::writeUserText(root_ + L"\\" + section, key, text);
}

std::optional<std::wstring> UserSettings::read(const std::wstring& section,
                                               const std::wstring& key) const {
  return support::readUserText(root_ + L"\\" + section, key);
}

}  // namespace program
