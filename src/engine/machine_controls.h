#pragma once

#include "controls/desktop.h"

namespace engine {

/// The boxes, keys and menu items that the adding machine works on, found in its window by these
/// names.
struct MachineControls {
  explicit MachineControls(const controls::Window& window);

  controls::Desktop& desktop;
  controls::TextBox& txtEntry;
  controls::TextBox& txtTape;
  controls::TextBox& txtDec;
  controls::ToggleButton& chkFloatingDec;
  controls::ToggleButton& chkShiftDec;
  controls::ToggleButton& chkTapeOff;
  controls::Button& cmdMemPlus;
  controls::MenuItem& mnuWinModes;
  controls::MenuItem& mnuWinPadTape;
};

}  // namespace engine
