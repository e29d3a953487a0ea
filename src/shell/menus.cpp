#include "shell/frm_calc.h"

namespace shell {

void frmCalc::chooseMode(engine::Mode mode) {
  const bool adding = mode == engine::Mode::Add;
  window_->menuItem("mnuWinMode(0)").setChecked(adding);
  window_->menuItem("mnuWinMode(1)").setChecked(!adding);
  window_->setCaption(adding ? "Add Mode, Tallyrex" : "Calc Mode, Tallyrex");
  window_->button("cmdSquareRoot").setVisible(!adding);
  machine_.chooseMode(mode);
}

void frmCalc::chkFloatingDec_Click() {
  mnuEditFloatingDecimal.setChecked(!mnuEditFloatingDecimal.checked());
  const bool floating = chkFloatingDec.value() == 1;
  chkShiftDec.setEnabled(!floating);
  mnuEditStationaryDecimal.setEnabled(!floating);
  txtDec.setEnabled(!floating);
  txtDec.setBackColor(floating ? controls::Color::buttonFace() : controls::Color::window());
  if (!floating) chkShiftDec.setCaption("");
  txtEntry.setFocus();
}

void frmCalc::chkShiftDec_Click() {
  mnuEditStationaryDecimal.setChecked(!mnuEditStationaryDecimal.checked());
  txtEntry.setFocus();
}

void frmCalc::chkTapeOff_Click() {
  mnuWinTapeOff.setChecked(!mnuWinTapeOff.checked());
  txtEntry.setFocus();
}

void frmCalc::mnuEditFloatingDecimal_Click() {
  const bool on = chkFloatingDec.value() == 0;
  chkFloatingDec.setValue(on);
  mnuEditStationaryDecimal.setEnabled(!on);
}

void frmCalc::mnuEditStationaryDecimal_Click() {
  chkShiftDec.setValue(1 - chkShiftDec.value());
}

void frmCalc::OpenFinancialCalc(common::AnnuityKind kind) {
  if (mnuWinAlwaysOnTop.checked())
    desktop_.showMessage({.text = "You may want to turn off the \"Always on Top\" since this "
                                  "next screen is run independently."});
  program_.openFinancialCalc(kind);
}

void frmCalc::mnuHelpContents_Click() {
  desktop_.showHelp({.file = globals_.helpFile});
}

// The About box must not be covered by a window that is always on top.
void frmCalc::mnuHelpAbout_Click() {
  const bool onTop = mnuWinAlwaysOnTop.checked();
  if (onTop) mnuWinAlwaysOnTop_Click();
  program_.showAbout([this, onTop] {
    if (onTop) mnuWinAlwaysOnTop_Click();
  });
}

void frmCalc::printLines(const std::string& lines) {
  txtTape.append(lines);
  txtEntry.setFocus();
}

}  // namespace shell
