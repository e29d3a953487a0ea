#pragma once

#include "controls/desktop.h"

namespace inmemory {

/// The keyboard of a desktop without a screen: keys go to the window in front.
class Keyboard {
 public:
  explicit Keyboard(controls::Desktop& desktop) : desktop_(desktop) {}

  /// A key goes down; `character` is 0 for a key without one.
  void down(const controls::KeyStroke& stroke, controls::KeyAscii character);
  /// A key comes up, in the control that has the focus by then.
  void up(controls::KeyCode key);

 private:
  controls::Desktop& desktop_;
};

}  // namespace inmemory
