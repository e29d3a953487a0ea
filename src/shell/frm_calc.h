#pragma once

#include <memory>
#include <string>

#include "controls/desktop.h"
#include "engine/adding_machine.h"
#include "shell/decimals_box.h"
#include "shell/edit_menu.h"
#include "shell/program.h"
#include "shell/settings.h"
#include "shell/tape_options.h"
#include "shell/tape_output.h"
#include "shell/text_box_colors.h"
#include "shell/window_place.h"

namespace shell {

/// The main window: the adding machine with its tape, and the shell around it.
class frmCalc {
 public:
  frmCalc(controls::Desktop& desktop, Program& program);
  frmCalc(const frmCalc&) = delete;
  frmCalc& operator=(const frmCalc&) = delete;

  controls::Window& window() { return *window_; }
  /// Whether it has been shown.
  bool isUp() const { return stage_ == Stage::Up; }
  void show() { window_->show(); }
  /// Saves the settings, unless the window is minimized, and closes it.
  void unload();

  /// Appends lines to the tape for another window. The entry box gets the focus when the user
  /// returns to this window.
  void printLines(const std::string& lines);

 private:
  /// The settings are restored by the first resize, the modes by the first activation.
  enum class Stage { Loaded, Restored, Up };

  void wireKeys();
  void wireEntry();
  void wireOtherBoxes();
  void wireMenu();

  void typeKey(controls::KeyCode key, controls::KeyAscii character);
  void wireFigures();
  void typeIntoEntry(controls::KeyAscii& key);
  void resize();
  void restoreSettings();
  void activate();
  void saveSettings();

  void chooseMode(engine::Mode mode);
  void openFinancialCalc(common::AnnuityKind kind);
  void showHelp();
  void showAbout();

  Program& program_;
  std::unique_ptr<controls::Window> window_;
  Settings settings_;
  engine::MachineControls controls_;
  engine::AddingMachine machine_;
  TextBoxColors colors_;
  DecimalsBox decimalsBox_;
  EditMenu editMenu_;
  TapeOptions tapeOptions_;
  TapeOutput tapeOutput_;
  WindowPlace place_;
  Stage stage_ = Stage::Loaded;
};

}  // namespace shell
