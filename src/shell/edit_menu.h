#pragma once

#include "controls/window.h"
#include "engine/entry.h"

namespace shell {

/// Cut, Copy and Paste, in the text box that has the focus. Where there is none they do nothing.
class EditMenu {
 public:
  EditMenu(controls::Window& window, engine::Entry& entry) : window_(window), entry_(entry) {}

  /// What is left of the entry is put in shape.
  void cut();
  void copy();
  void paste();

 private:
  controls::TextBox* focusedBox() const;

  controls::Window& window_;
  engine::Entry& entry_;
};

}  // namespace shell
