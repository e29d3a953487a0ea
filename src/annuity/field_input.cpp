#include "annuity/allow_key.h"
#include "annuity/field_text.h"
#include "annuity/frm_annuity.h"
#include "common/number_text.h"
#include "controls/number_field.h"

namespace annuity {

using controls::KeyAscii;
using controls::KeyCode;
using controls::NumberField;
using controls::TextBox;

namespace {

// Separators follow the digits only when these have changed.
void tidyMoney(TextBox& field, bool digitsChanged) {
  NumberField number(field);
  number.repairSign();
  number.dropSeparatorsBehindPoint();
  if (digitsChanged) number.reformat(groupThousands(field.text()));
  number.dropLeadingCommas();
}

}  // namespace

void frmAnnuity::wireMoneyField(TextBox& field) {
  field.onKeyPress = [this, &field](KeyAscii& key) {
    if (key == controls::kKeyBackspace) NumberField(field).stepOverSeparator();
    takeKey(field, key);
  };
  field.onKeyUp = [&field](KeyCode key) { tidyMoney(field, !controls::isNavigationKey(key)); };
  // No key comes up behind what the mouse or another program does.
  field.onPasted = [&field] { tidyMoney(field, true); };
  field.onMenuEdit = [&field](controls::MenuEdit) { tidyMoney(field, true); };
}

void frmAnnuity::enterField(TextBox& field) {
  field.setBackColor(program_.focusColor());
  field.setSelLength(field.length());
}

void frmAnnuity::takeKey(TextBox& field, KeyAscii& key) {
  if (takeEnterAsTab(key)) return;
  if (!allowKey(key, field.textWithoutSelection(), desktop_)) key = 0;
}

bool frmAnnuity::takeEnterAsTab(KeyAscii& key) {
  if (key != controls::kKeyEnter) return false;
  key = 0;
  window_->sendKey(controls::kKeyTab, controls::kKeyTab);
  return true;
}

// Where the comma is the decimal sign, 12,50 does not mean 1,250.
void frmAnnuity::takePaste(std::string& text) {
  text = controls::firstLineOf(text);
  if (!common::hasOddCommas(text)) return;
  text.clear();
  desktop_.beep();
}

}  // namespace annuity
