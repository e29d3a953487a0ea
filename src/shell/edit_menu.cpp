#include "shell/edit_menu.h"

namespace shell {

controls::TextBox* EditMenu::focusedBox() const {
  return dynamic_cast<controls::TextBox*>(controls_.txtEntry.window().focusedControl());
}

void EditMenu::cut() {
  controls::TextBox* box = focusedBox();
  if (box && box->cut() && box == &controls_.txtEntry) entry_.tidy();
}

void EditMenu::copy() {
  if (controls::TextBox* box = focusedBox()) box->copy();
}

void EditMenu::paste() {
  if (controls::TextBox* box = focusedBox()) box->paste();
}

}  // namespace shell
