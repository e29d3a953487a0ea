#pragma once

#include <string>

#include "controls/desktop.h"
#include "shell/settings.h"

namespace shell {

/// How the tape is written, and its place in the window.
class TapeOptions {
 public:
  TapeOptions(controls::Window& window, controls::Desktop& desktop);

  void restore(const Settings& settings);
  void save(Settings& settings) const;

  /// The tape fills what the window has beside the keys.
  void fitToWindow();
  void togglePadding();
  /// As the mark in the menu says; a tape without figures gets the header that belongs to it.
  void applyPadding();
  /// The menu's item, and what the toggle does however it was pressed.
  void toggleOff() { chkTapeOff_.setValue(1 - chkTapeOff_.value()); }
  void offChanged();

 private:
  controls::Window& window_;
  controls::Desktop& desktop_;
  controls::TextBox& txtTape_;
  controls::TextBox& txtEntry_;
  controls::ToggleButton& chkTapeOff_;
  controls::MenuItem& mnuWinPadTape_;
  controls::MenuItem& mnuWinTapeOff_;
  /// The tape when its padding was changed last.
  std::string tapeAtChange_;
};

}  // namespace shell
