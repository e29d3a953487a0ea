#include "annuity/allow_key.h"

#include <gtest/gtest.h>

#include <vector>

#include "inmemory/desktop.h"

namespace annuity {
namespace {

struct KeyCase {
  const char* whatAUserSees;
  controls::KeyAscii key;
  const char* text;
  bool allowed;
};

TEST(AllowKey, AcceptsOrRefusesACharacter) {
  const std::vector<KeyCase> cases = {
      {"the first digit", '0', "", true},
      {"the last digit", '9', "12", true},
      {"a point", '.', "12", true},
      {"a second point is refused", '.', "12.5", false},
      {"a minus in an empty field", '-', "", true},
      {"a minus behind a digit", '-', "5", true},
      {"a second minus is refused", '-', "-5", false},
      {"a minus is refused wherever the first one stands", '-', "5-", false},
      {"a comma, however many there are", ',', "1,2", true},
      {"Enter", 13, "", true},
      {"Backspace", 8, "", true},
      {"Ctrl+C", 3, "", true},
      {"Ctrl+V", 22, "", true},
      {"Ctrl+X", 24, "", true},
      {"Ctrl+Z", 26, "", true},
      {"Ctrl+A is refused", 1, "", false},
      {"Escape is refused", 27, "", false},
      {"a letter is refused", 'e', "1", false},
      {"a plus is refused", '+', "", false},
      {"a slash, just below the digits, is refused", '/', "", false},
      {"a colon, just above the digits, is refused", ':', "", false},
      {"a blank is refused", ' ', "", false},
      {"a digit of another script is refused", 0x0663, "", false},
  };
  for (const KeyCase& each : cases) {
    inmemory::Desktop desktop;
    EXPECT_EQ(allowKey(each.key, each.text, desktop), each.allowed) << each.whatAUserSees;
    EXPECT_EQ(desktop.beeps, each.allowed ? 0 : 1) << each.whatAUserSees;
  }
}

}  // namespace
}  // namespace annuity
