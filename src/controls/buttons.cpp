#include "controls/buttons.h"

#include "controls/window.h"

namespace controls {

void ClickControl::click() {
  if (enabled() && visible()) raise(onClick);
}

void ClickControl::typeCharacter(KeyAscii character) {
  const KeyAscii kept = keyPress(character);
  if (kept == kKeyEnter || kept == kKeySpace) click();
}

void ToggleButton::setValue(int value) {
  if (value_ == value) return;
  value_ = value;
  showValue();
  raise(onClick);
}

void ToggleButton::click() {
  if (enabled() && visible()) toggle();
}

OptionButton::OptionButton(Window& window, const ControlLayout& layout)
    : ClickControl(window, layout), value_(layout.chosen) {}

void OptionButton::setValue(bool value) {
  if (value_ == value) return;
  value_ = value;
  showValue();
  if (!value) return;
  for (const auto& control : window().controls()) {
    auto* other = dynamic_cast<OptionButton*>(control.get());
    if (other && other != this && other->layout().optionGroup == layout().optionGroup)
      other->setValue(false);
  }
  raise(onClick);
}

void OptionButton::click() {
  if (enabled() && visible()) setValue(true);
}

}  // namespace controls
