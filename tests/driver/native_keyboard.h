#pragma once

#include <windows.h>

#include <vector>

#include "controls/keys.h"

namespace driver {

/// The person's keyboard: what its keys send. Shift, Ctrl and Alt are held as long as a stroke
/// needs them.
class NativeKeyboard {
 public:
  using Inputs = std::vector<INPUT>;

  /// NumLock is on and CapsLock off while there is a keyboard, so that its keys type what they
  /// show.
  NativeKeyboard();
  ~NativeKeyboard();
  NativeKeyboard(const NativeKeyboard&) = delete;
  NativeKeyboard& operator=(const NativeKeyboard&) = delete;

  /// The key goes down; `character` is 0 for a key without one.
  Inputs down(const controls::KeyStroke& stroke, controls::KeyAscii character);
  /// The last key goes down once more, and what is held for it: something else let that go before
  /// the key arrived.
  Inputs downAgain();
  /// It comes up again, and with the last key what was held for it.
  Inputs up(const controls::KeyStroke& stroke);

 private:
  struct Modifiers {
    bool shift = false;
    bool control = false;
    bool alt = false;
  };
  struct Key {
    WORD code = 0;
    // Of a character that no key has. The system has a way to type those too.
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
