#pragma once

#include <string>
#include <string_view>

#include "engine/machine_controls.h"
#include "shell/settings.h"

namespace shell {

/// The box that holds the number of places, and the toggles for floating and stationary decimal
/// with their items in the menu.
class DecimalsBox {
 public:
  DecimalsBox(const controls::Window& window, const engine::MachineControls& controls);

  void restore(const Settings& settings);
  void save(Settings& settings) const;

  /// The items of the menu.
  void toggleFloating();
  void toggleStationary();
  /// What the toggles do, however they were pressed.
  void floatingChanged();
  void stationaryChanged();

  /// The box takes one digit; anything else beeps.
  void keyPress(controls::KeyAscii& key);
  void keyUp(controls::KeyCode key);
  void paste(std::string& text);
  void lostFocus();

 private:
  bool accepts(std::string_view text) const;

  const engine::MachineControls& controls_;
  controls::MenuItem& mnuEditFloatingDecimal_;
  controls::MenuItem& mnuEditStationaryDecimal_;
};

}  // namespace shell
