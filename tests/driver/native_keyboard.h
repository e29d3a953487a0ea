#pragma once

#include <windows.h>

#include <vector>

#include "controls/keys.h"

namespace driver {

/// The user's keyboard. Shift, Ctrl and Alt are down as long as a keystroke needs them.
class NativeKeyboard {
 public:
  using Inputs = std::vector<INPUT>;

  /// NumLock is on and CapsLock off while a keyboard exists, so that keys type their labels.
  NativeKeyboard();
  ~NativeKeyboard();
  NativeKeyboard(const NativeKeyboard&) = delete;
  NativeKeyboard& operator=(const NativeKeyboard&) = delete;

  /// Presses a key; `character` is 0 for a key without one.
  Inputs down(const controls::KeyStroke& stroke, controls::KeyAscii character);
  /// Presses the last key and its modifiers again, after something else released these too early or
  /// kept others down.
  Inputs downAgain();
  /// Releases a key, and with the last key its modifiers.
  Inputs up(const controls::KeyStroke& stroke);
  /// Releases the modifiers whose release has been lost; empty if none has.
  Inputs upAgain() const;

 private:
  struct Modifiers {
    bool shift = false;
    bool control = false;
    bool alt = false;
  };
  struct Key {
    WORD code = 0;
    // For a character without a key.
    WORD character = 0;
    Modifiers modifiers;
  };
  struct Press {
    controls::KeyCode named;
    Key key;
  };

  static Key keyOf(const controls::KeyStroke& stroke, controls::KeyAscii character);
  static INPUT input(const Key& key, bool up);
  static INPUT downInput(const Key& key);
  void hold(const Modifiers& wanted, Inputs& inputs);
  static bool setLock(WORD key, bool on);

  Modifiers held_;
  std::vector<Press> pressed_;
  bool numLockSwitched_;
  bool capsLockSwitched_;
};

}  // namespace driver
