#include "inmemory/keyboard.h"

#include "inmemory/text_box.h"

namespace inmemory {

void Keyboard::down(const controls::KeyStroke& stroke, controls::KeyAscii character) {
  controls::Window* window = desktop_.activeWindow();
  if (!window || !window->enabled()) return;
  desktop_.events().runEvent([&] {
    if (window->takeKey(stroke) || stroke.alt) return;
    controls::Control* control = window->focusedControl();
    if (!control) return;
    if (character != 0) {
      control->typeUnit(static_cast<char16_t>(character));
    } else if (auto* box = dynamic_cast<TextBox*>(control)) {
      box->pressKey(stroke);
    }
  });
}

void Keyboard::up(controls::KeyCode key) {
  const controls::Window* window = desktop_.activeWindow();
  if (!window || !window->focusedControl()) return;
  desktop_.events().runEvent([&] { window->focusedControl()->keyUp(key); });
}

}  // namespace inmemory
