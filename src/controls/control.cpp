#include "controls/control.h"

#include <cctype>
#include <utility>

#include "common/unicode.h"
#include "controls/desktop.h"
#include "controls/window.h"

namespace controls {

Control::Control(Window& window, const ControlLayout& layout)
    : window_(window),
      layout_(layout),
      name_(layout.name),
      caption_(layout.caption),
      toolTip_(layout.toolTip),
      bounds_(layout.place),
      backColor_(layout.kind == ControlKind::TextBox ? Color::window() : Color::buttonFace()) {}

void Control::setCaption(std::string_view caption) {
  caption_ = caption;
  showCaption();
}

void Control::setVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  leaveWhenUnable();
  showVisible();
}

void Control::setEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  leaveWhenUnable();
  showEnabled();
}

// A control that can no longer have the focus passes it on, as Tab would.
void Control::leaveWhenUnable() {
  if (window_.focusedControl() == this && !takesFocus()) window_.moveFocus(true);
}

void Control::setBounds(const Rect& bounds) {
  if (bounds_ == bounds) return;
  bounds_ = bounds;
  showBounds();
}

void Control::setWidth(Twips width) {
  Rect bounds = bounds_;
  bounds.width = width;
  setBounds(bounds);
}

void Control::setHeight(Twips height) {
  Rect bounds = bounds_;
  bounds.height = height;
  setBounds(bounds);
}

void Control::setBackColor(Color color) {
  if (backColor_ == color) return;
  backColor_ = color;
  showBackColor();
}

char Control::accessKey() const {
  const auto ampersand = caption_.find('&');
  if (ampersand == std::string::npos) return 0;
  return static_cast<char>(std::toupper(static_cast<unsigned char>(caption_[ampersand + 1])));
}

bool Control::takesFocus() const {
  return kind() != ControlKind::Label && kind() != ControlKind::Frame && visible_ && enabled_;
}

bool Control::focused() const {
  return window_.desktop().activeWindow() == &window_ && window_.focusedControl() == this;
}

void Control::setFocus() {
  window_.focusControl(*this);
}

KeyAscii Control::keyPress(KeyAscii character) {
  raise(onKeyPress, character);
  return character;
}

void Control::typeUnit(char16_t unit) {
  const char16_t first = std::exchange(highSurrogate_, 0);
  if (common::isHighSurrogate(unit)) {
    highSurrogate_ = unit;
  } else if (first != 0 && common::isLowSurrogate(unit)) {
    typeCharacter(static_cast<KeyAscii>(common::characterOfPair(first, unit)));
  } else {
    typeCharacter(unit);
  }
}

void Control::keyUp(KeyCode key) {
  raise(onKeyUp, key);
}

void Control::doubleClick() {
  raise(onDblClick);
}

}  // namespace controls
