#include "common/settings_store.h"

#include <algorithm>
#include <cctype>

#include "common/number_text.h"

namespace common {
namespace {

// Compares without regard to case.
bool isWord(std::string_view text, std::string_view lowerCaseWord) {
  return std::ranges::equal(text, lowerCaseWord, [](unsigned char left, unsigned char right) {
    return std::tolower(left) == right;
  });
}

}  // namespace

double readNumber(const SettingsStore& store, std::string_view section, std::string_view key,
                  double fallback) {
  const auto text = store.read(section, key);
  return text ? tryNumber(*text).value_or(fallback) : fallback;
}

bool readTruth(const SettingsStore& store, std::string_view section, std::string_view key,
               bool fallback) {
  const auto text = store.read(section, key);
  if (!text) return fallback;
  if (isWord(*text, "true")) return true;
  if (isWord(*text, "false")) return false;
  const auto number = tryNumber(*text);
  return number ? *number != 0 : fallback;
}

std::string readText(const SettingsStore& store, std::string_view section, std::string_view key,
                     std::string_view fallback) {
  return store.read(section, key).value_or(std::string(fallback));
}

std::string_view truthText(bool value) {
  return value ? "True" : "False";
}

}  // namespace common
