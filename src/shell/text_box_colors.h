#pragma once

#include "engine/machine_controls.h"
#include "shell/program.h"
#include "shell/settings.h"

namespace shell {

/// The color of the focused text box, which the user can choose.
class TextBoxColors {
 public:
  TextBoxColors(const engine::MachineControls& controls, Program& program, Settings& settings)
      : controls_(controls), program_(program), settings_(settings) {}

  void restore();
  /// The box has got the focus; the entry box loses the color.
  void mark(controls::TextBox& box);
  /// Lets the user choose the color.
  void choose();

 private:
  const engine::MachineControls& controls_;
  Program& program_;
  Settings& settings_;
};

}  // namespace shell
