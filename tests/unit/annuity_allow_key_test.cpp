#include "annuity/allow_key.h"

#include <gtest/gtest.h>

#include <vector>

#include "inmemory/desktop.h"

namespace annuity {
namespace {

struct KeyCase {
  const char* whatAUserSees;
  controls::KeyAscii key;
  const char* kind;
  const char* text;
  bool allowed;
};

TEST(AllowKey, AcceptsOrRefusesACharacter) {
  const std::vector<KeyCase> cases = {
      {"the first digit", '0', "fraction", "", true},
      {"the last digit", '9', "integer", "12", true},
      {"a point", '.', "fraction", "12", true},
      {"a second point is refused", '.', "fraction", "12.5", false},
      {"a point in a whole number is refused", '.', "integer", "12", false},
      {"a point in a field of no kind is refused", '.', "", "12", false},
      {"a minus in an empty field", '-', "fraction", "", true},
      {"a minus behind a digit", '-', "integer", "5", true},
      {"a second minus is refused", '-', "fraction", "-5", false},
      {"a minus is refused wherever the first one stands", '-', "fraction", "5-", false},
      {"a comma, however many there are", ',', "integer", "1,2", true},
      {"Enter", 13, "integer", "", true},
      {"Backspace", 8, "integer", "", true},
      {"Ctrl+C", 3, "integer", "", true},
      {"Ctrl+V", 22, "integer", "", true},
      {"Ctrl+X", 24, "integer", "", true},
      {"Ctrl+Z", 26, "integer", "", true},
      {"Ctrl+A is refused", 1, "integer", "", false},
      {"Escape is refused", 27, "integer", "", false},
      {"a letter is refused", 'e', "fraction", "1", false},
      {"a plus is refused", '+', "fraction", "", false},
      {"a slash, just below the digits, is refused", '/', "fraction", "", false},
      {"a colon, just above the digits, is refused", ':', "fraction", "", false},
      {"a blank is refused", ' ', "fraction", "", false},
      {"a digit of another script is refused", 0x0663, "fraction", "", false},
  };
  for (const KeyCase& each : cases) {
    inmemory::Desktop desktop;
    EXPECT_EQ(allowKey(each.key, each.kind, each.text, desktop), each.allowed)
        << each.whatAUserSees;
    EXPECT_EQ(desktop.beeps, each.allowed ? 0 : 1) << each.whatAUserSees;
  }
}

}  // namespace
}  // namespace annuity
