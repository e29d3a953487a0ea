#pragma once

#include <string>

#include "common/settings_store.h"

namespace win32 {

/// Settings in the user's part of the registry: a key for each section, a text value for each
/// setting.
class RegistrySettings : public common::SettingsStore {
 public:
  /// `root` is the key that contains the sections, under the user's root.
  explicit RegistrySettings(std::string root) : root_(std::move(root)) {}

  std::optional<std::string> read(std::string_view section, std::string_view key) const override;
  void write(std::string_view section, std::string_view key, std::string_view text) override;

 private:
  std::wstring path(std::string_view section) const;

  std::string root_;
};

}  // namespace win32
