#pragma once

#include "engine/machine_controls.h"

namespace engine {

/// How many decimals amounts have and how they are entered, as set by the decimals box and the two
/// toggles.
class Decimals {
 public:
  explicit Decimals(const MachineControls& controls)
      : floating_(controls.chkFloatingDec),
        stationary_(controls.chkShiftDec),
        places_(controls.txtDec) {}

  /// As many decimals as are keyed.
  bool floating() const { return floating_.value() == 1; }
  /// Digits fill in from the right, after an implied point.
  bool stationary() const { return !floating() && stationary_.value() == 1; }
  /// The digit in the decimals box; 0 if it does not contain a single digit.
  int places() const;
  /// Writes 0 into an empty decimals box.
  void fillEmptyBox();

 private:
  const controls::ToggleButton& floating_;
  const controls::ToggleButton& stationary_;
  controls::TextBox& places_;
};

}  // namespace engine
