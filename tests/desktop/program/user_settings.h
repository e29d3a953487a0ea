#pragma once

#include <optional>
#include <string>

namespace program {

/// The settings that the tested program keeps for the user, seen with the system's own functions.
class UserSettings {
 public:
  /// Of the program of that name, without its extension.
  explicit UserSettings(const std::wstring& programName);

  void clear();
  void write(const std::wstring& section, const std::wstring& key, const std::wstring& text);
  std::optional<std::wstring> read(const std::wstring& section, const std::wstring& key) const;

  /// In the section of the main window.
  void set(const std::wstring& key, const std::wstring& text) { write(L"Settings", key, text); }
  /// In the section of the main window; empty when it is not there.
  std::wstring get(const std::wstring& key) const { return read(L"Settings", key).value_or(L""); }

 private:
  std::wstring root_;
};

}  // namespace program
