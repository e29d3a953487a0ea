#include <algorithm>

#include "annuity/field_text.h"
#include "annuity/frm_annuity.h"
#include "common/unicode.h"
#include "engine/allow_key.h"

namespace annuity {

using controls::KeyAscii;
using controls::KeyCode;
using controls::TextBox;

namespace {

// The caret stays behind the character behind which it was, and is never left in front of the sign.
void dropFirstCharacter(TextBox& field) {
  const std::u16string text = common::toUtf16(field.text());
  const int caret = field.selStart() - 1;
  const bool signedNow = text.size() > 1 && text[1] == u'-';
  field.setText(common::toUtf8(std::u16string_view(text).substr(1)));
  field.setSelStart(std::max(caret, signedNow ? 1 : 0));
}

// A minus typed behind the 0 that a field holds at first takes its place.
void repairMinus(TextBox& field) {
  const std::string text = field.text();
  if (text.find('-') != std::string::npos && text[0] != '-') dropFirstCharacter(field);
}

void formatSeparators(TextBox& field) {
  const std::string text = field.text();
  const std::string grouped = groupThousands(text);
  if (grouped == text) return;
  const int caret = field.selStart();
  const int length = field.length();
  field.setText(grouped);
  field.setSelStart(std::max(caret + field.length() - length, 0));
}

// Backspace takes the digit in front of a separator, not the separator.
void stepOverSeparator(TextBox& field) {
  const int caret = field.selStart();
  if (caret == 0 || field.selLength() > 0) return;
  if (common::toUtf16(field.text())[static_cast<std::size_t>(caret) - 1] == u',')
    field.setSelStart(caret - 1);
}

}  // namespace

void frmAnnuity::Field_GotFocus(TextBox& field) {
  field.setBackColor(controls::Color::rgb(globals_.glngTextBackColor));
  field.setSelLength(field.length());
}

bool frmAnnuity::EnterAsTab(KeyAscii& key) {
  if (key != controls::kKeyEnter) return false;
  key = 0;
  window_->sendKey(controls::kKeyTab, 0);
  return true;
}

void frmAnnuity::Field_KeyPress(TextBox& field, KeyAscii& key) {
  if (EnterAsTab(key)) return;
  if (!engine::AllowKey(key, "fraction", field.textWithoutSelection(), desktop_)) key = 0;
}

void frmAnnuity::MoneyField_KeyPress(TextBox& field, KeyAscii& key) {
  if (key == controls::kKeyBackspace) stepOverSeparator(field);
  Field_KeyPress(field, key);
}

void frmAnnuity::MoneyField_KeyUp(TextBox& field, KeyCode key) {
  repairMinus(field);
  if (!controls::isNavigationKey(key)) formatSeparators(field);
  while (field.text().starts_with(',')) dropFirstCharacter(field);
}

void frmAnnuity::optDue_Click(int index) {
  mintDueBegin = index != 0;
  WithdrawPrint();
}

// The answer may no longer belong to what the window shows.
void frmAnnuity::WithdrawPrint() {
  cmdPrintToTape.setVisible(false);
}

}  // namespace annuity
