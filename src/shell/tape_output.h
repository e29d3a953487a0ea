#pragma once

#include <string>

#include "controls/desktop.h"

namespace shell {

/// The tape goes to the clipboard and from there to Notepad, which saves and prints it.
class TapeOutput {
 public:
  TapeOutput(controls::Window& window, controls::Desktop& desktop);

  void copyTape();
  /// Beeps while Notepad is still awaited.
  void openInNotepad();
  /// Save and Print of the File menu ask whether Notepad is wanted.
  void save();
  void print();

 private:
  bool copyWholeTape();
  void offerNotepad(const std::string& title);

  controls::Desktop& desktop_;
  controls::TextBox& txtTape_;
  controls::TextBox& txtEntry_;
  controls::MenuItem& mnuWinPadTape_;
  // Notepad is awaited, while the window goes on working.
  bool handingOver_ = false;
};

}  // namespace shell
