#include "annuity/frm_annuity.h"
#include "common/number_text.h"

namespace annuity {

void frmAnnuity::cmdRotateLabels_Click() {
  WithdrawPrint();
  const Configuration& next = mintNextConfig == 0
                                  ? requestedConfiguration(globals_.gintFinCalcRequest)
                                  : configurationOf(mintNextConfig);
  window_->setCaption(next.windowCaption);
  msngSignPV = next.signPV;
  msngSignPmt = next.signPmt;
  msngSignFV = next.signFV;
  mintNextConfig = static_cast<std::int16_t>(next.nextCode);
  window_->control("Label2").setCaption(next.termLabel);
  window_->control("Label4").setCaption(next.paymentLabel);
  window_->control("Label5").setCaption(next.presentValueLabel);
  window_->control("Label6").setCaption(next.futureValueLabel);
  window_->control("Label8").setVisible(next.hintsAtBalloon);
  ShowNote(next);
}

// A stored answer other than 6, Yes, keeps the note away; so does one that is no number.
void frmAnnuity::ShowNote(const Configuration& configuration) {
  common::SettingsStore& settings = desktop_.settings();
  const auto stored = settings.read("Annuity", configuration.noteKey);
  if (stored && common::tryNumber(*stored) != controls::kAnswerYes) return;
  const int answer = desktop_.showMessage({.text = std::string(configuration.note),
                                           .buttons = controls::Buttons::YesNo,
                                           .title = std::string(configuration.noteTitle)});
  if (answer == controls::kAnswerNo)
    settings.write("Annuity", configuration.noteKey, common::toText(answer));
}

}  // namespace annuity
