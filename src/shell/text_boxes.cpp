#include "common/number_text.h"
#include "shell/frm_calc.h"

namespace shell {

using controls::Color;

namespace {

constexpr Color kWhite = Color::rgb(0xFFFFFF);
constexpr controls::KeyCode kKeyShift = 16;

bool isDigit(int character) {
  return character >= '0' && character <= '9';
}

}  // namespace

void frmCalc::txtEntry_GotFocus() {
  txtEntry.setBackColor(textBackColor());
}

void frmCalc::txtTape_GotFocus() {
  txtTape.moveCaretToEnd();
  txtTape.setBackColor(textBackColor());
  txtEntry.setBackColor(kWhite);
}

void frmCalc::txtTape_LostFocus() {
  txtTape.setBackColor(Color::window());
}

void frmCalc::txtDec_GotFocus() {
  txtEntry.setBackColor(kWhite);
  txtDec.setBackColor(textBackColor());
  txtDec.selectAll();
}

void frmCalc::txtDec_LostFocus() {
  txtDec.setBackColor(chkFloatingDec.value() == 1 ? Color::buttonFace() : Color::window());
  if (txtDec.text().empty()) txtDec.setText("0");
}

bool frmCalc::DecAccepts(std::string_view text) const {
  return text.size() == 1 && isDigit(text[0]) && txtDec.textWithoutSelection().empty();
}

void frmCalc::txtDec_KeyPress(controls::KeyAscii& key) {
  if (key == controls::kKeyBackspace) return;
  const char character = static_cast<char>(key);
  if (isDigit(key) && DecAccepts({&character, 1})) return;
  key = 0;
  desktop_.beep();
}

// One key stroke sets the places, and typing goes on in the entry box. The release of Tab, and of
// the Shift held with it, belongs to the stroke that led here.
void frmCalc::txtDec_KeyUp(controls::KeyCode key) {
  if (key != controls::kKeyTab && key != kKeyShift) txtEntry.setFocus();
}

// A cell copied from a spreadsheet ends in a line end.
void frmCalc::txtDec_Paste(std::string& text) {
  text = controls::firstLineOf(text);
  if (DecAccepts(text)) return;
  text.clear();
  desktop_.beep();
}

void frmCalc::Label1_DblClick() {
  desktop_.showMessage(
      {.text = "On the next screen choose the color you would like as the background color "
               "for the text boxes. Choose Cancel on the next screen to quit."});
  const auto color = desktop_.chooseColor(globals_.glngTextBackColor);
  // 0, black, counts as no colour chosen.
  if (!color || *color == 0) return;
  globals_.glngTextBackColor = *color;
  store("glngTextBackColor", common::toText(*color));
  if (window_->focusedControl()) window_->focusedControl()->setBackColor(textBackColor());
}

}  // namespace shell
