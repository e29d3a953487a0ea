#include "annuity/frm_annuity.h"
#include "annuity/tape_record.h"

namespace annuity {

namespace {

constexpr controls::Twips kWidthWithTape = 7600;

constexpr PerQuantity<std::string_view> kLabels = {"Label2", "Label3", "Label4", "Label5",
                                                   "Label6"};

}  // namespace

void frmAnnuity::print() {
  if (!program_.mainWindowIsUp()) {
    const int answer = desktop_.showMessage(
        {.text = "For this action to work correctly you must first reload Tallyrex then execute "
                 "this again.  Do you wish to reload Tallyrex?",
         .buttons = controls::Buttons::YesNo,
         .icon = controls::Icon::Question});
    if (answer == controls::kAnswerYes) program_.showMainWindow();
    if (answer != controls::kAnswerNo) return;
  }
  program_.printToTape(record(), kWidthWithTape);
  // This window may cover the tape.
  cmdPrintToTape.confirm("Sent to the tape");
}

// Prints what the user sees: no sign is changed.
std::string frmAnnuity::record() const {
  const auto valueOnTape = [this](Quantity quantity) {
    const std::string text = fields_[quantity]->text();
    if (quantity == Quantity::Term) return termOnTape(text, optTermInMonths.value());
    return quantity == Quantity::Rate ? rateOnTape(text) : moneyOnTape(text);
  };
  std::vector<TapeEntry> entries;
  for (const Quantity quantity : kQuantities)
    if (fields_[quantity]->length() > 0)
      entries.push_back({window_->control(kLabels[quantity]).caption(), valueOnTape(quantity)});
  return tapeRecord(entries, {lblResultType.caption(), answerOnTape(lblAnswer.caption())});
}

}  // namespace annuity
