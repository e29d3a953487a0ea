#pragma once

#include <map>
#include <string>

#include "common/settings_store.h"

namespace inmemory {

/// Settings that are kept in the object.
class Settings : public common::SettingsStore {
 public:
  using Section = std::map<std::string, std::string, std::less<>>;

  std::optional<std::string> read(std::string_view section, std::string_view key) const override;
  void write(std::string_view section, std::string_view key, std::string_view text) override;

  std::map<std::string, Section, std::less<>> sections;
};

}  // namespace inmemory
