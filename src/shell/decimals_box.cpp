#include "shell/decimals_box.h"

namespace shell {

using controls::Color;

namespace {

constexpr controls::KeyCode kKeyShift = 16;

bool isDigit(int character) {
  return character >= '0' && character <= '9';
}

}  // namespace

DecimalsBox::DecimalsBox(controls::Window& window, controls::Desktop& desktop)
    : desktop_(desktop),
      txtDec_(window.textBox("txtDec")),
      txtEntry_(window.textBox("txtEntry")),
      chkFloatingDec_(window.toggleButton("chkFloatingDec")),
      chkShiftDec_(window.toggleButton("chkShiftDec")),
      mnuEditFloatingDecimal_(window.menuItem("mnuEditFloatingDecimal")),
      mnuEditStationaryDecimal_(window.menuItem("mnuEditStationaryDecimal")) {}

void DecimalsBox::restore(const Settings& settings) {
  const bool stationary = settings.number("frmCalcchkShiftDec", 0) != 0;
  const bool floating = settings.number("frmCalcchkFloatingDec", 0) != 0;
  chkShiftDec_.setValue(stationary);
  chkFloatingDec_.setValue(floating);
  mnuEditStationaryDecimal_.setChecked(stationary);
  mnuEditFloatingDecimal_.setChecked(floating);
  txtDec_.setText(settings.text("frmCalctxtDec", "2"));
}

void DecimalsBox::save(Settings& settings) const {
  settings.writeNumber("frmCalcchkShiftDec", chkShiftDec_.value());
  settings.writeNumber("frmCalcchkFloatingDec", chkFloatingDec_.value());
  settings.write("frmCalctxtDec", txtDec_.text());
}

void DecimalsBox::toggleFloating() {
  const bool on = chkFloatingDec_.value() == 0;
  chkFloatingDec_.setValue(on);
  mnuEditStationaryDecimal_.setEnabled(!on);
}

void DecimalsBox::toggleStationary() {
  chkShiftDec_.setValue(1 - chkShiftDec_.value());
}

void DecimalsBox::floatingChanged() {
  mnuEditFloatingDecimal_.setChecked(!mnuEditFloatingDecimal_.checked());
  const bool floating = chkFloatingDec_.value() == 1;
  chkShiftDec_.setEnabled(!floating);
  mnuEditStationaryDecimal_.setEnabled(!floating);
  txtDec_.setEnabled(!floating);
  txtDec_.setBackColor(floating ? Color::buttonFace() : Color::window());
  if (!floating) chkShiftDec_.setCaption("");
  txtEntry_.setFocus();
}

void DecimalsBox::stationaryChanged() {
  mnuEditStationaryDecimal_.setChecked(!mnuEditStationaryDecimal_.checked());
  txtEntry_.setFocus();
}

bool DecimalsBox::accepts(std::string_view text) const {
  return text.size() == 1 && isDigit(text[0]) && txtDec_.textWithoutSelection().empty();
}

void DecimalsBox::keyPress(controls::KeyAscii& key) {
  if (key == controls::kKeyBackspace) return;
  const char character = static_cast<char>(key);
  if (isDigit(key) && accepts({&character, 1})) return;
  key = 0;
  desktop_.beep();
}

// One keystroke sets the places, and typing goes on in the entry box. The release of Tab, and of
// the Shift held with it, belongs to the stroke that led here.
void DecimalsBox::keyUp(controls::KeyCode key) {
  if (key != controls::kKeyTab && key != kKeyShift) txtEntry_.setFocus();
}

// A cell copied from a spreadsheet ends in a line end.
void DecimalsBox::paste(std::string& text) {
  text = controls::firstLineOf(text);
  if (accepts(text)) return;
  text.clear();
  desktop_.beep();
}

void DecimalsBox::lostFocus() {
  txtDec_.setBackColor(chkFloatingDec_.value() == 1 ? Color::buttonFace() : Color::window());
  if (txtDec_.text().empty()) txtDec_.setText("0");
}

}  // namespace shell
