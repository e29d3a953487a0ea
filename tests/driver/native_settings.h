#pragma once

#include <optional>
#include <string>

#include "driver/json.h"

namespace driver {

/// The key of the user's registry for the settings of an application that runs in the driver. What
/// the user keeps for the real program is elsewhere.
std::string storedKey(const std::string& application);

/// The settings of such an application: in the registry a key is a section, and a text a setting.
std::optional<std::string> readStored(const std::string& application, const std::string& section,
                                      const std::string& key);
void writeStored(const std::string& application, const std::string& section, const std::string& key,
                 const std::string& text);
/// A section goes with its last setting.
void deleteStored(const std::string& application, const std::string& section,
                  const std::string& key);
void clearStored(const std::string& application);
void clearAllStored();
/// {SECTION: {KEY: TEXT}}, by name.
Json dumpStored(const std::string& application);

}  // namespace driver
