#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "controls/desktop.h"

namespace contract {

/// One kind of controls, and the hands of a person who works with them. The contract's tests run
/// once for each kind.
class Kind {
 public:
  virtual ~Kind() = default;

  virtual controls::Desktop& desktop() = 0;
  /// One key goes down and comes up again; `character` is 0 for a key without one.
  virtual void press(const controls::KeyStroke& stroke, controls::KeyAscii character) = 0;
  /// A mouse click on a control of a window that is shown.
  virtual void click(controls::Control& control) = 0;
  /// Does something while another program has the clipboard open.
  virtual void whileClipboardIsLocked(const std::function<void()>& body) = 0;
  /// Waits until the system has done what it was asked for.
  virtual void settle() = 0;
};

/// A fresh desktop of the kind that this program was built for.
std::unique_ptr<Kind> makeKind();

}  // namespace contract
