#pragma once

#include "engine/entry.h"
#include "engine/machine_controls.h"

namespace shell {

/// Cut, Copy and Paste, in the text box that has the focus. Where there is none they do nothing.
class EditMenu {
 public:
  EditMenu(const engine::MachineControls& controls, engine::Entry& entry)
      : controls_(controls), entry_(entry) {}

  /// What is left of the entry is put in shape.
  void cut();
  void copy();
  void paste();

 private:
  controls::TextBox* focusedBox() const;

  const engine::MachineControls& controls_;
  engine::Entry& entry_;
};

}  // namespace shell
