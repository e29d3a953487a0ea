#include "driver/keys.h"

#include <algorithm>
#include <array>

#include "driver/command.h"

namespace driver {

using controls::KeyCode;

namespace {

struct CharacterKey {
  char16_t character;
  KeyCode key;
  bool shift;
};

constexpr std::array kCharacterKeys = {
    CharacterKey{'!', '1', true},   CharacterKey{'@', '2', true},  CharacterKey{'#', '3', true},
    CharacterKey{'$', '4', true},   CharacterKey{'%', '5', true},  CharacterKey{'^', '6', true},
    CharacterKey{'&', '7', true},   CharacterKey{'*', '8', true},  CharacterKey{'(', '9', true},
    CharacterKey{')', '0', true},   CharacterKey{';', 186, false}, CharacterKey{':', 186, true},
    CharacterKey{'=', 187, false},  CharacterKey{'+', 187, true},  CharacterKey{',', 188, false},
    CharacterKey{'<', 188, true},   CharacterKey{'-', 189, false}, CharacterKey{'_', 189, true},
    CharacterKey{'.', 190, false},  CharacterKey{'>', 190, true},  CharacterKey{'/', 191, false},
    CharacterKey{'?', 191, true},   CharacterKey{'`', 192, false}, CharacterKey{'~', 192, true},
    CharacterKey{'[', 219, false},  CharacterKey{'{', 219, true},  CharacterKey{'\\', 220, false},
    CharacterKey{'|', 220, true},   CharacterKey{']', 221, false}, CharacterKey{'}', 221, true},
    CharacterKey{'\'', 222, false}, CharacterKey{'"', 222, true}};

struct NamedKey {
  std::string_view name;
  Stroke stroke;
};

constexpr std::array kNamedKeys = {
    NamedKey{"Enter", {{.key = controls::kKeyEnter}, 13}},
    NamedKey{"Backspace", {{.key = controls::kKeyBackspace}, 8}},
    NamedKey{"Delete", {{.key = controls::kKeyDelete}}},
    NamedKey{"Tab", {{.key = controls::kKeyTab}}},
    NamedKey{"Shift+Tab", {{.key = controls::kKeyTab, .shift = true}}},
    NamedKey{"Escape", {{.key = controls::kKeyEscape}, 27}},
    NamedKey{"Space", {{.key = controls::kKeySpace}, ' '}},
    NamedKey{"Left", {{.key = controls::kKeyLeft}}},
    NamedKey{"Right", {{.key = controls::kKeyRight}}},
    NamedKey{"Up", {{.key = controls::kKeyUp}}},
    NamedKey{"Down", {{.key = controls::kKeyDown}}},
    NamedKey{"Home", {{.key = controls::kKeyHome}}},
    NamedKey{"End", {{.key = controls::kKeyEnd}}},
    NamedKey{"Shift+Left", {{.key = controls::kKeyLeft, .shift = true}}},
    NamedKey{"Shift+Right", {{.key = controls::kKeyRight, .shift = true}}},
    NamedKey{"Shift+Home", {{.key = controls::kKeyHome, .shift = true}}},
    NamedKey{"Shift+End", {{.key = controls::kKeyEnd, .shift = true}}},
    NamedKey{"Shift+Insert", {{.key = controls::kKeyInsert, .shift = true}}},
    NamedKey{"F1", {{.key = controls::kKeyF1}}}};

bool isLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

}  // namespace

Stroke strokeOf(char16_t character) {
  const auto key = std::ranges::find_if(
      kCharacterKeys, [character](const auto& entry) { return entry.character == character; });
  if (key != kCharacterKeys.end()) return {{.key = key->key, .shift = key->shift}, character};
  if (character == '\t') return {{.key = controls::kKeyTab}};
  const char ascii = character < 128 ? static_cast<char>(character) : '\0';
  if (isLetter(ascii)) return {{.key = ascii & ~0x20, .shift = ascii < 'a'}, character};
  return {{.key = ascii}, character};
}

Stroke strokeNamed(std::string_view name) {
  const auto named =
      std::ranges::find_if(kNamedKeys, [name](const auto& entry) { return entry.name == name; });
  if (named != kNamedKeys.end()) return named->stroke;
  const bool control = name.starts_with("Ctrl+") && name.size() == 6;
  const bool alt = name.starts_with("Alt+") && name.size() == 5;
  if ((!control && !alt) || !isLetter(name.back()))
    throw CommandError("no such key: " + std::string(name));
  const KeyCode letter = name.back() & ~0x20;
  return {{.key = letter, .control = control, .alt = alt}, control ? letter - 'A' + 1 : letter};
}

}  // namespace driver
