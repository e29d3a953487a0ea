#pragma once

namespace controls {

/// The code of a key, as the system numbers them; letters and digits are their capital characters.
using KeyCode = int;

/// The character of a keystroke, by reference in a KeyPress handler; 0 discards the character.
using KeyAscii = int;

inline constexpr KeyCode kKeyBackspace = 8;
inline constexpr KeyCode kKeyTab = 9;
inline constexpr KeyCode kKeyEnter = 13;
inline constexpr KeyCode kKeyEscape = 27;
inline constexpr KeyCode kKeySpace = 32;
inline constexpr KeyCode kKeyEnd = 35;
inline constexpr KeyCode kKeyHome = 36;
inline constexpr KeyCode kKeyLeft = 37;
inline constexpr KeyCode kKeyUp = 38;
inline constexpr KeyCode kKeyRight = 39;
inline constexpr KeyCode kKeyDown = 40;
inline constexpr KeyCode kKeyInsert = 45;
inline constexpr KeyCode kKeyDelete = 46;
inline constexpr KeyCode kKeyF1 = 112;

/// The characters of the keystrokes that every text box knows.
inline constexpr KeyAscii kCtrlC = 3;
inline constexpr KeyAscii kCtrlV = 22;
inline constexpr KeyAscii kCtrlX = 24;
inline constexpr KeyAscii kCtrlZ = 26;

/// The keys that only move the caret: End, Home and the arrows.
constexpr bool isNavigationKey(KeyCode key) {
  return key >= kKeyEnd && key <= kKeyDown;
}

/// A pressed key with its modifiers.
struct KeyStroke {
  KeyCode key = 0;
  bool shift = false;
  bool control = false;
  bool alt = false;
};

}  // namespace controls
