#include "annuity/frm_annuity.h"
#include "common/number_text.h"

namespace annuity {

void frmAnnuity::applyConfiguration(const Configuration& configuration) {
  withdrawPrint();
  showing_ = &configuration;
  window_->setCaption(configuration.windowCaption);
  window_->control("Label2").setCaption(configuration.termLabel);
  window_->control("Label4").setCaption(configuration.paymentLabel);
  window_->control("Label5").setCaption(configuration.presentValueLabel);
  window_->control("Label6").setCaption(configuration.futureValueLabel);
  window_->control("Label8").setVisible(configuration.hintsAtBalloon);
  showNote();
}

// Any stored answer other than Yes suppresses the note, even one that is not a number.
void frmAnnuity::showNote() {
  common::SettingsStore& settings = desktop_.settings();
  const auto stored = settings.read("Annuity", showing_->noteKey);
  if (stored && common::tryNumber(*stored) != controls::kAnswerYes) return;
  const int answer = desktop_.showMessage({.text = std::string(showing_->note),
                                           .buttons = controls::Buttons::YesNo,
                                           .title = std::string(showing_->noteTitle)});
  if (answer == controls::kAnswerNo)
    settings.write("Annuity", showing_->noteKey, common::toText(answer));
}

}  // namespace annuity
