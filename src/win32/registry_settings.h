#pragma once

#include <string>

#include "common/settings_store.h"

namespace win32 {

/// Settings in the user's own part of the registry: one key a section, one text value a setting.
class RegistrySettings : public common::SettingsStore {
 public:
  /// `root` is the key that holds the sections, under the user's root.
  explicit RegistrySettings(std::string root) : root_(std::move(root)) {}

  std::optional<std::string> read(std::string_view section, std::string_view key) const override;
  void write(std::string_view section, std::string_view key, std::string_view text) override;

 private:
  std::wstring path(std::string_view section) const;

  std::string root_;
};

}  // namespace win32
