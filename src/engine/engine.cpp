#include "engine/engine.h"

namespace engine {

void Engine::ShowError(const common::RunTimeError& error) {
  c_.desktop.showMessage({.text = common::errorText(error.number())});
}

void Engine::ChooseMode(int mode) {
  mintMode = mode;
  mdblTotal = 0;
  if (mblnTempCalc) {
    mintMode = kAddMode;
    mblnTempCalc = false;
  }
}

int Engine::places() const {
  const std::string text = c_.txtDec.text();
  const bool oneDigit = text.size() == 1 && text[0] >= '0' && text[0] <= '9';
  return oneDigit ? text[0] - '0' : 0;
}

bool Engine::entryIsBlank() const {
  const std::string text = c_.txtEntry.text();
  return text.empty() || text == ".";
}

void Engine::focusEntryAtEnd() {
  c_.txtEntry.setFocus();
  c_.txtEntry.moveCaretToEnd();
}

void Engine::chkFloatingDec_Click() {
  c_.mnuEditFloatingDecimal.setChecked(!c_.mnuEditFloatingDecimal.checked());
  const bool floating = floatingDecimal();
  c_.chkShiftDec.setEnabled(!floating);
  c_.mnuEditStationaryDecimal.setEnabled(!floating);
  c_.txtDec.setEnabled(!floating);
  c_.txtDec.setBackColor(floating ? controls::Color::buttonFace() : controls::Color::window());
  if (!floating) c_.chkShiftDec.setCaption("");
  c_.txtEntry.setFocus();
}

void Engine::chkShiftDec_Click() {
  c_.mnuEditStationaryDecimal.setChecked(!c_.mnuEditStationaryDecimal.checked());
  c_.txtEntry.setFocus();
}

void Engine::chkTapeOff_Click() {
  c_.mnuWinTapeOff.setChecked(!c_.mnuWinTapeOff.checked());
  c_.txtEntry.setFocus();
}

}  // namespace engine
