#pragma once

#include <string>
#include <string_view>

#include "common/settings_store.h"
#include "controls/geometry.h"

namespace shell {

/// The stored settings of the main window. A setting that is missing, or is not a number, has the
/// fallback value.
class Settings {
 public:
  explicit Settings(common::SettingsStore& store) : store_(store) {}

  double number(std::string_view key, double fallback) const;
  /// Limited to what a window can have.
  controls::Twips twips(std::string_view key, controls::Twips fallback) const;
  bool truth(std::string_view key) const;
  std::string text(std::string_view key, std::string_view fallback) const;

  void write(std::string_view key, std::string_view text);
  void writeNumber(std::string_view key, double number);
  void writeTruth(std::string_view key, bool truth);

 private:
  common::SettingsStore& store_;
};

}  // namespace shell
