#pragma once

#include <string>

#include "engine/decimals.h"
#include "shell/settings.h"

namespace shell {

/// The box with the number of decimals, and the toggles for floating and stationary decimal with
/// their menu items.
class DecimalsBox {
 public:
  DecimalsBox(const controls::Window& window, const engine::MachineControls& controls);

  void restore(const Settings& settings);
  void save(Settings& settings) const;

  /// The toggles have changed, by whatever means.
  void floatingChanged();
  void stationaryChanged();

  /// The box accepts one digit and beeps for anything else.
  void keyPress(controls::KeyAscii& key);
  void keyUp(controls::KeyCode key);
  void paste(std::string& text);
  void lostFocus();

 private:
  bool hasRoom() const;

  const engine::MachineControls& controls_;
  engine::Decimals decimals_;
  controls::MenuItem& mnuEditFloatingDecimal_;
  controls::MenuItem& mnuEditStationaryDecimal_;
};

}  // namespace shell
