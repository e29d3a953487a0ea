#pragma once

#include <optional>

#include "controls/text_box.h"
#include "win32/message.h"

namespace win32 {

class NativeControl;

/// Translates edits other than typed characters, by editing keys, context menu, mouse, screen
/// readers and other programs, into the control's own edits.
class TextInput {
 public:
  TextInput(controls::TextBox& box, const NativeControl& native) : box_(box), native_(native) {}

  /// Null passes the message on to the native control.
  std::optional<LRESULT> take(const Message& message);

 private:
  std::optional<LRESULT> takeKey(WPARAM key);
  std::optional<LRESULT> takeEdit(const Message& message);
  LRESULT takeText(const Message& message);
  void showMenu(POINT screenPlace);
  POINT menuPlace(const Message& message) const;

  controls::TextBox& box_;
  const NativeControl& native_;
};

}  // namespace win32
