#pragma once

#include <string>

#include "engine/machine_controls.h"

namespace shell {

/// The tape goes to the clipboard and from there to Notepad, which saves and prints it.
class TapeOutput {
 public:
  explicit TapeOutput(const engine::MachineControls& controls) : controls_(controls) {}

  void copyTape();
  /// Beeps while Notepad is still awaited.
  void openInNotepad();
  /// Save and Print of the File menu ask whether Notepad is wanted.
  void save();
  void print();

 private:
  bool copyWholeTape();
  void offerNotepad(const std::string& title);

  const engine::MachineControls& controls_;
  // Notepad is awaited, while the window goes on working.
  bool handingOver_ = false;
};

}  // namespace shell
