#include "driver/native_settings.h"

#include <map>

#include "support/registry_key.h"
#include "win32/text.h"

namespace driver {

using support::RegistryKey;

namespace {

constexpr char kRoot[] = "Software\\TallyrexDriver";

std::wstring pathOf(const std::string& application) {
  return win32::wide(storedKey(application));
}

std::wstring pathOf(const std::string& application, const std::string& section) {
  return win32::wide(storedKey(application) + "\\" + section);
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
  if (RegistryKey::open(HKEY_CURRENT_USER, path).values().empty())
    RegDeleteTreeW(HKEY_CURRENT_USER, path.c_str());
}

void clearStored(const std::string& application) {
  RegDeleteTreeW(HKEY_CURRENT_USER, pathOf(application).c_str());
}

void clearAllStored() {
  RegDeleteTreeW(HKEY_CURRENT_USER, win32::wide(kRoot).c_str());
}

Json dumpStored(const std::string& application) {
  std::map<std::string, std::map<std::string, std::string>> dump;
  const RegistryKey root = RegistryKey::open(HKEY_CURRENT_USER, pathOf(application));
  for (const std::wstring& section : root.keys()) {
    const RegistryKey key = RegistryKey::open(root.get(), section);
    for (const support::RegistryValue& value : key.values())
      dump[win32::narrow(section)][win32::narrow(value.name)] =
          win32::narrow(key.readText(value.name).value_or(std::wstring()));
  }
  return dump;
}

}  // namespace driver
