#pragma once

#include <string>

#include "engine/machine_controls.h"
#include "shell/settings.h"

namespace shell {

/// How the tape is written, and its place in the window.
class TapeOptions {
 public:
  TapeOptions(const controls::Window& window, const engine::MachineControls& controls);

  void restore(const Settings& settings);
  void save(Settings& settings) const;

  /// The tape fills what the window has beside the keys.
  void fitToWindow();
  void togglePadding();
  /// As the mark in the menu says; a tape without figures gets the header that belongs to it.
  void applyPadding();
  /// The menu's item, and what the toggle does however it was pressed.
  void toggleOff() { controls_.chkTapeOff.setValue(1 - controls_.chkTapeOff.value()); }
  void offChanged();

 private:
  const controls::Window& window_;
  const engine::MachineControls& controls_;
  controls::MenuItem& mnuWinTapeOff_;
  /// The tape when its padding was changed last.
  std::string tapeAtChange_;
};

}  // namespace shell
