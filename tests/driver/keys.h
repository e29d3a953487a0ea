#pragma once

#include <string_view>

#include "controls/keys.h"

namespace driver {

/// A keystroke: the key with its modifiers, and its character, 0 for none.
struct Stroke {
  controls::KeyStroke key;
  controls::KeyAscii character = 0;
};

/// The keystroke for a character on a common keyboard.
Stroke strokeOf(char16_t character);

/// The keystroke of a named key, such as "Enter", "Shift+Tab", "Ctrl+F", "Alt+M". Throws
/// CommandError for an unknown name.
Stroke strokeNamed(std::string_view name);

}  // namespace driver
