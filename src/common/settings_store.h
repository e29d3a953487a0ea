#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace common {

/// The per-user settings of one application: text values addressed by section and key.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;

  virtual std::optional<std::string> read(std::string_view section, std::string_view key) const = 0;
  virtual void write(std::string_view section, std::string_view key, std::string_view text) = 0;
};

/// The stored number; `fallback` when the key is absent or its text is not a number.
double readNumber(const SettingsStore& store, std::string_view section, std::string_view key,
                  double fallback);

/// The stored truth value: the words True and False, or a number, where 0 is false; `fallback` when
/// the key is absent or its text is neither.
bool readTruth(const SettingsStore& store, std::string_view section, std::string_view key,
               bool fallback);

/// The stored text; `fallback` when the key is absent.
std::string readText(const SettingsStore& store, std::string_view section, std::string_view key,
                     std::string_view fallback);

/// "True" or "False", whatever the language of the system.
std::string_view truthText(bool value);

}  // namespace common
