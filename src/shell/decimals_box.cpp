#include "shell/decimals_box.h"

#include "common/number_text.h"

namespace shell {

using controls::Color;

namespace {

constexpr controls::KeyCode kKeyShift = 16;

}  // namespace

DecimalsBox::DecimalsBox(const controls::Window& window, const engine::MachineControls& controls)
    : controls_(controls),
      decimals_(controls),
      mnuEditFloatingDecimal_(window.menuItem("mnuEditFloatingDecimal")),
      mnuEditStationaryDecimal_(window.menuItem("mnuEditStationaryDecimal")) {}

void DecimalsBox::restore(const Settings& settings) {
  controls_.chkShiftDec.setValue(settings.number("frmCalcchkShiftDec", 0) != 0);
  controls_.chkFloatingDec.setValue(settings.number("frmCalcchkFloatingDec", 0) != 0);
  controls_.txtDec.setText(settings.text("frmCalctxtDec", "2"));
}

void DecimalsBox::save(Settings& settings) const {
  settings.writeNumber("frmCalcchkShiftDec", controls_.chkShiftDec.value());
  settings.writeNumber("frmCalcchkFloatingDec", controls_.chkFloatingDec.value());
  settings.write("frmCalctxtDec", controls_.txtDec.text());
}

void DecimalsBox::floatingChanged() {
  mnuEditFloatingDecimal_.setChecked(!mnuEditFloatingDecimal_.checked());
  const bool floating = decimals_.floating();
  controls_.chkShiftDec.setEnabled(!floating);
  mnuEditStationaryDecimal_.setEnabled(!floating);
  controls_.txtDec.setEnabled(!floating);
  controls_.txtDec.setBackColor(floating ? Color::buttonFace() : Color::window());
  controls_.txtEntry.setFocus();
}

void DecimalsBox::stationaryChanged() {
  mnuEditStationaryDecimal_.setChecked(!mnuEditStationaryDecimal_.checked());
  controls_.txtEntry.setFocus();
}

bool DecimalsBox::hasRoom() const {
  return controls_.txtDec.textWithoutSelection().empty();
}

void DecimalsBox::keyPress(controls::KeyAscii& key) {
  if (key == controls::kKeyBackspace || (common::isDigit(key) && hasRoom())) return;
  key = 0;
  controls_.desktop.beep();
}

// One keystroke sets the number of decimals and returns to the entry box. The release of Tab or
// Shift belongs to the keystroke that moved the focus here.
void DecimalsBox::keyUp(controls::KeyCode key) {
  if (key != controls::kKeyTab && key != kKeyShift) controls_.txtEntry.setFocus();
}

// A cell copied from a spreadsheet ends in a line break.
void DecimalsBox::paste(std::string& text) {
  text = controls::firstLineOf(text);
  if (common::isOneDigit(text) && hasRoom()) return;
  text.clear();
  controls_.desktop.beep();
}

void DecimalsBox::lostFocus() {
  controls_.txtDec.setBackColor(Color::window());
  decimals_.fillEmptyBox();
}

}  // namespace shell
