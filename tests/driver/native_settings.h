#pragma once

#include <optional>
#include <string>

#include "driver/json.h"

namespace driver {

/// The registry key for the settings of an application in the driver, separate from those of the
/// real program.
std::string storedKey(const std::string& application);

/// The settings of such an application: each registry key is a section, each text a setting.
std::optional<std::string> readStored(const std::string& application, const std::string& section,
                                      const std::string& key);
void writeStored(const std::string& application, const std::string& section, const std::string& key,
                 const std::string& text);
/// A section is deleted with its last setting.
void deleteStored(const std::string& application, const std::string& section,
                  const std::string& key);
void clearStored(const std::string& application);
void clearAllStored();
/// {SECTION: {KEY: TEXT}}, by name.
Json dumpStored(const std::string& application);

}  // namespace driver
