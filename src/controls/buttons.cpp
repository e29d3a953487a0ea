#include "controls/buttons.h"

#include "controls/window.h"

namespace controls {

void ClickControl::click() {
  if (enabled() && visible()) act();
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

OptionButton::OptionButton(Window& window, const ControlLayout& layout)
    : ClickControl(window, layout), value_(layout.chosen) {}

void OptionButton::setValue(bool value) {
  if (value_ == value) return;
  value_ = value;
  showValue();
  if (!value) return;
  for (OptionButton* other : group())
    if (other != this) other->setValue(false);
  raise(onClick);
}

std::vector<OptionButton*> OptionButton::group() const {
  std::vector<OptionButton*> group;
  for (const auto& control : window().controls()) {
    auto* option = dynamic_cast<OptionButton*>(control.get());
    if (option && option->layout().optionGroup == layout().optionGroup) group.push_back(option);
  }
  return group;
}

}  // namespace controls
