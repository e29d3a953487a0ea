#pragma once

#include <functional>
#include <memory>

#include "controls/desktop.h"

namespace contract {

/// One kind of controls, and the input of its user. The contract tests run once for each kind.
class Kind {
 public:
  virtual ~Kind() = default;

  virtual controls::Desktop& desktop() = 0;
  /// Presses and releases a key; `character` is 0 for a key without one.
  virtual void press(const controls::KeyStroke& stroke, controls::KeyAscii character) = 0;
  /// Clicks on a control of a visible window.
  virtual void click(controls::Control& control) = 0;
  /// Runs `body` while another program keeps the clipboard open.
  virtual void whileClipboardIsLocked(const std::function<void()>& body) = 0;
  /// Waits until the system has carried out all requests.
  virtual void settle() = 0;
};

/// A new desktop of the kind that this program was built for.
std::unique_ptr<Kind> makeKind();

}  // namespace contract
