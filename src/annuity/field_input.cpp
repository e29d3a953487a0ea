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

// A digit typed in front of the sign would be lost.
void rewrite(TextBox& field, std::string_view text, int caret) {
  field.setText(text);
  field.setSelStart(std::max(caret, text.starts_with('-') ? 1 : 0));
}

// The caret stays behind the character behind which it was.
void dropFirstCharacter(TextBox& field) {
  const std::u16string text = common::toUtf16(field.text());
  rewrite(field, common::toUtf8(std::u16string_view(text).substr(1)), field.selStart() - 1);
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
  const int added = static_cast<int>(grouped.size()) - static_cast<int>(text.size());
  rewrite(field, grouped, field.selStart() + added);
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
