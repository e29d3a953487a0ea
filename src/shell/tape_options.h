#pragma once

#include <string>

#include "engine/machine_controls.h"
#include "shell/settings.h"

namespace shell {

/// How the tape is printed, and its size in the window.
class TapeOptions {
 public:
  TapeOptions(const controls::Window& window, const engine::MachineControls& controls);

  void restore(const Settings& settings);
  void save(Settings& settings) const;

  /// Makes the tape fill the space beside the keys.
  void fitToWindow();
  void togglePadding();
  /// Applies the check mark of the menu item; a tape without amounts gets the matching header.
  void applyPadding();
  /// The toggle has changed, by whatever means.
  void offChanged();

 private:
  const controls::Window& window_;
  const engine::MachineControls& controls_;
  controls::MenuItem& mnuWinTapeOff_;
  /// The tape when its padding was last changed.
  std::string tapeAtChange_;
};

}  // namespace shell
