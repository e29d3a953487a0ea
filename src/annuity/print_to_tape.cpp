#include "annuity/frm_annuity.h"
#include "annuity/tape_record.h"

namespace annuity {

using controls::TextBox;

namespace {

constexpr controls::Twips kWidthWithTape = 7600;

}  // namespace

void frmAnnuity::cmdPrintToTape_Click() {
  if (!globals_.gblnCalcLoaded) {
    const int answer = desktop_.showMessage(
        {.text = "For this action to work correctly you must first reload Tallyrex then execute "
                 "this again.  Do you wish to reload Tallyrex?",
         .buttons = controls::Buttons::YesNo,
         .icon = controls::Icon::Question});
    if (answer == controls::kAnswerYes) return program_.showMainWindow();
  }
  program_.printToTape(record(), kWidthWithTape);
}

// What is printed is what the user sees: no sign is changed.
std::string frmAnnuity::record() const {
  const auto caption = [this](std::string_view label) { return window_->control(label).caption(); };
  std::vector<TapeEntry> fields;
  const auto add = [&](const TextBox& field, std::string_view label, const std::string& value) {
    if (field.length() > 0) fields.push_back({caption(label), value});
  };
  add(txtNper, "Label2", termOnTape(txtNper.text(), optNper[0]->value()));
  add(txtRate, "Label3", rateOnTape(txtRate.text()));
  add(txtPmt, "Label4", moneyOnTape(txtPmt.text()));
  add(txtPV, "Label5", moneyOnTape(txtPV.text()));
  add(txtFV, "Label6", moneyOnTape(txtFV.text()));
  return tapeRecord(fields, {lblResultType.caption(), answerOnTape(lblAnswer.caption())});
}

}  // namespace annuity
