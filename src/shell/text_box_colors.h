#pragma once

#include "controls/desktop.h"
#include "shell/program.h"
#include "shell/settings.h"

namespace shell {

/// The text box that has the focus has a colour of its own, which the user chooses.
class TextBoxColors {
 public:
  TextBoxColors(controls::Window& window, controls::Desktop& desktop, Program& program,
                Settings& settings)
      : window_(window), desktop_(desktop), program_(program), settings_(settings) {}

  void restore();
  /// The box gets the focus, which the entry box has shown until then.
  void mark(controls::TextBox& box);
  /// Lets the user choose the colour.
  void choose();

 private:
  controls::Window& window_;
  controls::Desktop& desktop_;
  Program& program_;
  Settings& settings_;
};

}  // namespace shell
