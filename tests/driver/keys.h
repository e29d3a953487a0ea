#pragma once

#include <string>
#include <string_view>

#include "controls/keys.h"

namespace driver {

/// A keystroke of a person: the key with its modifiers, and the character that it types, 0 for
/// none.
struct Stroke {
  controls::KeyStroke key;
  controls::KeyAscii character = 0;
};

/// The stroke that types a character on a keyboard of the common layout.
Stroke strokeOf(char16_t character);

/// The stroke of a named key, such as "Enter", "Shift+Tab", "Ctrl+F", "Alt+M". Raises CommandError
/// for any other name.
Stroke strokeNamed(std::string_view name);

}  // namespace driver
