#pragma once

#include <string>

#include "engine/machine_controls.h"

namespace shell {

/// Copies the tape to the clipboard and from there to Notepad, which can save and print it.
class TapeOutput {
 public:
  explicit TapeOutput(const engine::MachineControls& controls) : controls_(controls) {}

  void copyTape();
  /// Beeps while an earlier call still waits for Notepad.
  void openInNotepad();
  /// Save and Print of the File menu ask before they use Notepad.
  void save();
  void print();

 private:
  bool copyWholeTape();
  void offerNotepad(const std::string& title);

  const engine::MachineControls& controls_;
  // Waiting for Notepad; the window stays usable meanwhile.
  bool handingOver_ = false;
};

}  // namespace shell
