#pragma once

#include <optional>

#include "controls/text_box.h"
#include "win32/message.h"

namespace win32 {

class NativeControl;

/// What a user does to a text by other means than characters: editing keys, the context menu, the
/// mouse, and a screen reader on his behalf. All of it takes the way of the control's own edits.
class TextInput {
 public:
  TextInput(controls::TextBox& box, const NativeControl& native) : box_(box), native_(native) {}

  /// Nothing when the message is to go on to the native control.
  std::optional<LRESULT> take(const Message& message);

 private:
  std::optional<LRESULT> takeKey(WPARAM key);
  std::optional<LRESULT> takeMouse(const Message& message);
  std::optional<LRESULT> takeEdit(const Message& message);
  LRESULT takeText(const Message& message);
  void showMenu(POINT screenPlace);
  POINT menuPlace(const Message& message) const;

  controls::TextBox& box_;
  const NativeControl& native_;
};

}  // namespace win32
