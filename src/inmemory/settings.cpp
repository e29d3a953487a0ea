#include "inmemory/settings.h"

namespace inmemory {

std::optional<std::string> Settings::read(std::string_view section, std::string_view key) const {
  const auto found = sections.find(section);
  if (found == sections.end()) return {};
  const auto value = found->second.find(key);
  if (value == found->second.end()) return {};
  return value->second;
}

void Settings::write(std::string_view section, std::string_view key, std::string_view text) {
  sections[std::string(section)][std::string(key)] = text;
}

}  // namespace inmemory
