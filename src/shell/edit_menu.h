#pragma once

#include "engine/entry.h"
#include "engine/machine_controls.h"

namespace shell {

/// Cut, Copy and Paste in the focused text box. They do nothing without one.
class EditMenu {
 public:
  EditMenu(const engine::MachineControls& controls, engine::Entry& entry)
      : controls_(controls), entry_(entry) {}

  /// Also formats the rest of an entry.
  void cut();
  void copy();
  void paste();

 private:
  controls::TextBox* focusedBox() const;

  const engine::MachineControls& controls_;
  engine::Entry& entry_;
};

}  // namespace shell
