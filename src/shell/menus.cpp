#include "shell/frm_calc.h"

namespace shell {

void frmCalc::mnuWinMode_Click(int index) {
  window_->menuItem("mnuWinMode(0)").setChecked(index == engine::kAddMode);
  window_->menuItem("mnuWinMode(1)").setChecked(index == engine::kCalculatorMode);
  const bool adding = index == engine::kAddMode;
  window_->setCaption(adding ? "Add Mode, Tallyrex" : "Calc Mode, Tallyrex");
  window_->button("cmdSquareRoot").setVisible(!adding);
  engine_.ChooseMode(index);
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
  common::trap(
      [&] {
        if (mnuWinAlwaysOnTop.checked())
          desktop_.showMessage({.text = "You may want to turn off the \"Always on Top\" since this "
                                        "next screen is run independently."});
        program_.openFinancialCalc(kind);
      },
      [this](const common::RunTimeError& error) { engine_.ShowError(error); });
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
