#pragma once

#include "engine/machine_controls.h"
#include "shell/program.h"
#include "shell/settings.h"

namespace shell {

/// The text box that has the focus has a colour of its own, which the user chooses.
class TextBoxColors {
 public:
  TextBoxColors(const engine::MachineControls& controls, Program& program, Settings& settings)
      : controls_(controls), program_(program), settings_(settings) {}

  void restore();
  /// The box gets the focus, which the entry box has shown until then.
  void mark(controls::TextBox& box);
  /// Lets the user choose the colour.
  void choose();

 private:
  const engine::MachineControls& controls_;
  Program& program_;
  Settings& settings_;
};

}  // namespace shell
