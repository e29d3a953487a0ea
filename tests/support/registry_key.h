#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace support {

/// A value of the registry: its type and its bytes.
struct RegistryValue {
  std::wstring name;
  DWORD type = REG_NONE;
  std::vector<BYTE> data;
};

RegistryValue registryNumber(const std::wstring& name, DWORD number);
RegistryValue registryText(const std::wstring& name, const std::wstring& text);

/// A key of the registry, closed at the end.
class RegistryKey {
 public:
  /// A key that exists; `operator bool` is false if it cannot be opened.
  static RegistryKey open(HKEY parent, const std::wstring& path, REGSAM access = KEY_READ);
  /// A key that is made where it does not exist; `options` as REG_OPTION_VOLATILE.
  static RegistryKey make(HKEY parent, const std::wstring& path, DWORD options = 0);
  ~RegistryKey();
  RegistryKey(RegistryKey&& other) noexcept : key_(std::exchange(other.key_, nullptr)) {}
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;

  explicit operator bool() const { return key_ != nullptr; }
  HKEY get() const { return key_; }

  /// False if it cannot be written.
  bool write(const RegistryValue& value) const;
  void remove(const std::wstring& name) const { RegDeleteValueW(key_, name.c_str()); }
  /// Null without a value of that name.
  std::optional<RegistryValue> read(const std::wstring& name) const;
  /// 0 without a number of that name.
  DWORD readNumber(const std::wstring& name) const;
  /// Null without a text of that name.
  std::optional<std::wstring> readText(const std::wstring& name) const;

  /// All values, and the names of all keys, in it.
  std::vector<RegistryValue> values() const;
  std::vector<std::wstring> keys() const;

 private:
  explicit RegistryKey(HKEY key) : key_(key) {}

  HKEY key_;
};

/// A text under the user's registry root; null if it does not exist.
std::optional<std::wstring> readUserText(const std::wstring& key, const std::wstring& name);
void writeUserText(const std::wstring& key, const std::wstring& name, const std::wstring& text);

}  // namespace support
