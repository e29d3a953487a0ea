#pragma once

#include <optional>
#include <string>

namespace program {

/// The settings of the tested program, read with the system's own functions.
class UserSettings {
 public:
  /// Of the program with that name, without extension.
  explicit UserSettings(const std::wstring& programName);

  void clear();
  void write(const std::wstring& section, const std::wstring& key, const std::wstring& text);
  std::optional<std::wstring> read(const std::wstring& section, const std::wstring& key) const;

  /// In the main window's section.
  void set(const std::wstring& key, const std::wstring& text) { write(L"Settings", key, text); }
  /// In the main window's section; empty if it does not exist.
  std::wstring get(const std::wstring& key) const { return read(L"Settings", key).value_or(L""); }

 private:
  std::wstring root_;
};

}  // namespace program
