#pragma once

#include "controls/desktop.h"

namespace inmemory {

/// A person's keyboard on a desktop without a screen: keys go to the window in front.
class Keyboard {
 public:
  explicit Keyboard(controls::Desktop& desktop) : desktop_(desktop) {}

  /// A key goes down; `character` is 0 for a key without one.
  void down(const controls::KeyStroke& stroke, controls::KeyAscii character);
  /// It comes up again, at the control that has the focus then.
  void up(controls::KeyCode key);

 private:
  controls::Desktop& desktop_;
};

}  // namespace inmemory
