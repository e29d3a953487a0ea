#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "controls/color.h"
#include "controls/keys.h"
#include "controls/layout.h"

namespace controls {

class Window;

/// Calls a handler if one is set.
template <class Handler, class... Arguments>
void raise(const Handler& handler, Arguments&&... arguments) {
  if (handler) handler(std::forward<Arguments>(arguments)...);
}

/// A part of a window: what labels, boxes and buttons have in common. It is built from its layout
/// and lives as long as its window. The state is kept here; an implementation displays it.
class Control {
 public:
  Control(Window& window, const ControlLayout& layout);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string& name() const { return name_; }
  const ControlLayout& layout() const { return layout_; }
  ControlKind kind() const { return layout_.kind; }
  Window& window() const { return window_; }

  /// With "&" before the access key.
  const std::string& caption() const { return caption_; }
  void setCaption(std::string_view caption);
  const std::string& toolTip() const { return toolTip_; }
  bool visible() const { return visible_; }
  void setVisible(bool visible);
  bool enabled() const { return enabled_; }
  void setEnabled(bool enabled);
  /// In twips, within the client area of the window.
  const Rect& bounds() const { return bounds_; }
  void setBounds(const Rect& bounds);
  void setWidth(Twips width);
  void setHeight(Twips height);
  Color backColor() const { return backColor_; }
  void setBackColor(Color color);

  /// The letter after the "&" of the caption, as a capital; 0 without one.
  char accessKey() const;
  /// Whether it can take the focus now: visible, enabled, and neither a label nor a frame.
  bool takesFocus() const;
  /// Whether it has the focus of the program now.
  bool focused() const;
  /// Moves the focus here and raises the focus events. In a window that is not in front, the
  /// control gets the focus when the window next comes to the front.
  void setFocus();

  std::function<void()> onGotFocus;
  std::function<void()> onLostFocus;
  std::function<void()> onDblClick;
  /// The character of a keystroke, before it takes effect; setting it to 0 discards it.
  std::function<void(KeyAscii&)> onKeyPress;
  std::function<void(KeyCode)> onKeyUp;

  /// Raises KeyPress. Returns the character to act on, 0 for none.
  KeyAscii keyPress(KeyAscii character);
  void keyUp(KeyCode key);
  void doubleClick();
  /// A character is typed while it has the focus: KeyPress, then the effect of the character.
  virtual void typeCharacter(KeyAscii character) { keyPress(character); }
  /// The same for a UTF-16 unit: the two halves of a surrogate pair are typed as one character.
  void typeUnit(char16_t unit);

 protected:
  /// Called when a property has changed, for an implementation that displays it.
  virtual void showCaption() {}
  virtual void showVisible() {}
  virtual void showEnabled() {}
  virtual void showBounds() {}
  virtual void showBackColor() {}

 private:
  void leaveWhenUnable();

  Window& window_;
  ControlLayout layout_;
  std::string name_;
  std::string caption_;
  std::string toolTip_;
  Rect bounds_;
  Color backColor_;
  bool visible_ = true;
  bool enabled_ = true;
  // The first half of a surrogate pair.
  char16_t highSurrogate_ = 0;
};

}  // namespace controls
