#include "shell/frm_calc.h"

#include "shell/frm_calc_layout.h"

namespace shell {

using engine::Mode;

frmCalc::frmCalc(controls::Desktop& desktop, Program& program)
    : program_(program),
      window_(desktop.createWindow(frmCalcLayout())),
      settings_(desktop.settings()),
      controls_(*window_),
      machine_(controls_),
      colors_(controls_, program, settings_),
      decimalsBox_(*window_, controls_),
      editMenu_(controls_, machine_.entry()),
      tapeOptions_(*window_, controls_),
      tapeOutput_(controls_),
      place_(*window_, settings_) {
  wireKeys();
  wireFigures();
  wireEntry();
  wireOtherBoxes();
  wireMenu();
  window_->onResize = [this] { resize(); };
  window_->onActivate = [this] { activate(); };
  window_->onClose = [this] { unload(); };
  window_->onHelp = [this] { showHelp(); };
  controls_.txtTape.setText("Top");
}

void frmCalc::resize() {
  tapeOptions_.fitToWindow();
  if (stage_ == Stage::Loaded) restoreSettings();
}

// Restoring the size raises more resizes.
void frmCalc::restoreSettings() {
  stage_ = Stage::Restored;
  place_.restore();
  colors_.restore();
  decimalsBox_.restore(settings_);
  tapeOptions_.restore(settings_);
  const bool adding = settings_.number("frmCalcmintMode", 1) == 0;
  machine_.chooseMode(adding ? Mode::Add : Mode::Calculator);
}

void frmCalc::activate() {
  if (stage_ != Stage::Restored) return;
  // A window that is not on top would flash in the corner.
  if (place_.onTop()) place_.applyOnTop();
  tapeOptions_.applyPadding();
  chooseMode(machine_.chosenMode());
  machine_.clearTape();
  stage_ = Stage::Up;
}

void frmCalc::unload() {
  saveSettings();
  program_.unloadCalc();
}

void frmCalc::saveSettings() {
  if (window_->state() == controls::WindowState::Minimized || !window_->visible()) return;
  place_.save();
  decimalsBox_.save(settings_);
  tapeOptions_.save(settings_);
  settings_.writeNumber("frmCalcmintMode", static_cast<int>(machine_.chosenMode()));
}

void frmCalc::printLines(const std::string& lines) {
  controls_.txtTape.append(lines);
  controls_.txtEntry.setFocus();
}

void frmCalc::chooseMode(Mode mode) {
  const bool adding = mode == Mode::Add;
  window_->menuItem("mnuWinMode(0)").setChecked(adding);
  window_->menuItem("mnuWinMode(1)").setChecked(!adding);
  window_->setCaption(adding ? "Add Mode, Tallyrex" : "Calc Mode, Tallyrex");
  window_->button("cmdSquareRoot").setVisible(!adding);
  machine_.chooseMode(mode);
}

void frmCalc::openFinancialCalc(common::AnnuityKind kind) {
  if (place_.onTop())
    controls_.desktop.showMessage({.text =
                                       "You may want to turn off the \"Always on Top\" since this "
                                       "next screen is run independently."});
  program_.openFinancialCalc(kind);
}

void frmCalc::showHelp() {
  controls_.desktop.showHelp({.file = program_.helpFile()});
}

// The About box must not be covered by a window that is always on top.
void frmCalc::showAbout() {
  const bool onTop = place_.onTop();
  if (onTop) place_.toggleOnTop();
  program_.showAbout([this, onTop] {
    if (onTop) place_.toggleOnTop();
  });
}

}  // namespace shell
