#include "driver/native_settings.h"

#include <windows.h>

#include <map>
#include <vector>

#include "support/registry.h"
#include "win32/handles.h"
#include "win32/text.h"

namespace driver {

namespace {

using Settings = std::map<std::string, std::string>;

constexpr char kRoot[] = "Software\\TallyrexDriver";
constexpr DWORD kLongestName = 16384;

std::wstring pathOf(const std::string& application) {
  return win32::wide(storedKey(application));
}

std::wstring pathOf(const std::string& application, const std::string& section) {
  return win32::wide(storedKey(application) + "\\" + section);
}

win32::OwnedKey open(const std::wstring& path) {
  HKEY key = nullptr;
  RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key);
  return win32::OwnedKey(key);
}

std::vector<std::string> sectionsOf(const std::string& application) {
  std::vector<std::string> names;
  const win32::OwnedKey key = open(pathOf(application));
  if (!key) return names;
  std::wstring name(kLongestName, L'\0');
  DWORD length = kLongestName;
  while (RegEnumKeyExW(key.get(), static_cast<DWORD>(names.size()), name.data(), &length, nullptr,
                       nullptr, nullptr, nullptr) == ERROR_SUCCESS) {
    names.push_back(win32::narrow({name.data(), length}));
    length = kLongestName;
  }
  return names;
}

std::vector<std::string> keysOf(const std::string& application, const std::string& section) {
  std::vector<std::string> names;
  const win32::OwnedKey key = open(pathOf(application, section));
  if (!key) return names;
  std::wstring name(kLongestName, L'\0');
  DWORD length = kLongestName;
  while (RegEnumValueW(key.get(), static_cast<DWORD>(names.size()), name.data(), &length, nullptr,
                       nullptr, nullptr, nullptr) == ERROR_SUCCESS) {
    names.push_back(win32::narrow({name.data(), length}));
    length = kLongestName;
  }
  return names;
}

}  // namespace

std::string storedKey(const std::string& application) {
  return kRoot + ("\\" + application);
}

std::optional<std::string> readStored(const std::string& application, const std::string& section,
                                      const std::string& key) {
  const auto text = support::readUserText(pathOf(application, section), win32::wide(key));
  if (!text) return {};
  return win32::narrow(*text);
}

void writeStored(const std::string& application, const std::string& section, const std::string& key,
                 const std::string& text) {
  support::writeUserText(pathOf(application, section), win32::wide(key), win32::wide(text));
}

void deleteStored(const std::string& application, const std::string& section,
                  const std::string& key) {
  const std::wstring path = pathOf(application, section);
  RegDeleteKeyValueW(HKEY_CURRENT_USER, path.c_str(), win32::wide(key).c_str());
  if (keysOf(application, section).empty()) RegDeleteTreeW(HKEY_CURRENT_USER, path.c_str());
}

void clearStored(const std::string& application) {
  RegDeleteTreeW(HKEY_CURRENT_USER, pathOf(application).c_str());
}

void clearAllStored() {
  RegDeleteTreeW(HKEY_CURRENT_USER, win32::wide(kRoot).c_str());
}

Json dumpStored(const std::string& application) {
  std::map<std::string, Settings> sections;
  for (const std::string& section : sectionsOf(application))
    for (const std::string& key : keysOf(application, section))
      sections[section][key] = readStored(application, section, key).value_or("");
  Json dump = Json::object();
  for (const auto& [section, settings] : sections)
    for (const auto& [key, text] : settings) dump[section][key] = text;
  return dump;
}

}  // namespace driver
