#include "annuity/frm_annuity.h"

#include "annuity/answer_text.h"
#include "annuity/frm_annuity_layout.h"

namespace annuity {

using controls::TextBox;

frmAnnuity::frmAnnuity(controls::Desktop& desktop, Program& program)
    : desktop_(desktop),
      program_(program),
      window_(desktop.createWindow(frmAnnuityLayout())),
      fields_{&window_->textBox("txtNper"), &window_->textBox("txtRate"),
              &window_->textBox("txtPmt"), &window_->textBox("txtPV"), &window_->textBox("txtFV")},
      optTermInMonths(window_->optionButton("optNper(0)")),
      optTermInYears(window_->optionButton("optNper(1)")),
      optDueAtBeginning(window_->optionButton("optDue(1)")),
      cmdPrintToTape(window_->button("cmdPrintToTape")),
      lblResultType(window_->control("lblResultType")),
      lblAnswer(window_->control("lblAnswer")) {
  wireFields();
  wireButtons();
  window_->onClose = [this] { unload(); };
  window_->onHelp = [this] { showHelp(); };
}

void frmAnnuity::wireFields() {
  for (TextBox* field : fields_.values) {
    field->onChange = [this](controls::ChangedBy) { withdrawPrint(); };
    field->onGotFocus = [this, field] { enterField(*field); };
    field->onLostFocus = [field] { field->setBackColor(controls::Color::window()); };
    field->onKeyPress = [this, field](controls::KeyAscii& key) { takeKey(*field, key); };
    field->onPaste = [this](std::string& text) { takePaste(text); };
  }
  for (const Quantity money : {Quantity::Payment, Quantity::PresentValue, Quantity::FutureValue})
    wireMoneyField(*fields_[money]);
}

void frmAnnuity::wireButtons() {
  const auto button = [this](std::string_view name) -> std::function<void()>& {
    return window_->button(name).onClick;
  };
  for (const auto* name : {"optNper(0)", "optNper(1)", "optDue(0)", "optDue(1)"}) {
    controls::OptionButton& option = window_->optionButton(name);
    option.onClick = [this] { withdrawPrint(); };
    option.onKeyPress = [this](controls::KeyAscii& key) { takeEnterAsTab(key); };
  }
  button("cmdCalculate") = [this] { calculate(); };
  button("cmdRotateLabels") = [this] { applyConfiguration(nextConfiguration(*showing_)); };
  button("cmdClearAll") = [this] { clearAll(); };
  button("cmdHelp") = [this] { showHelp(); };
  button("cmdPrintToTape") = [this] { print(); };
}

void frmAnnuity::calculate() {
  const Outcome outcome = solve(problem(), *showing_);
  for (const auto& [quantity, text] : outcome.written) fields_[quantity]->setText(text);
  if (const auto* answer = std::get_if<Answer>(&outcome.result)) return showAnswer(*answer);
  if (const auto* refusal = std::get_if<Refusal>(&outcome.result)) return showRefusal(*refusal);
  reportError(std::get<common::RunTimeError>(outcome.result));
}

AnnuityProblem frmAnnuity::problem() const {
  AnnuityProblem problem;
  for (const Quantity quantity : kQuantities) problem.texts[quantity] = fields_[quantity]->text();
  problem.termInMonths = optTermInMonths.value();
  problem.dueAtBeginning = optDueAtBeginning.value();
  return problem;
}

void frmAnnuity::showAnswer(const Answer& answer) {
  lblAnswer.setCaption(answer.text);
  lblResultType.setCaption(answer.caption);
  cmdPrintToTape.setVisible(true);
}

void frmAnnuity::showRefusal(Refusal refusal) {
  desktop_.showMessage({.text = std::string(refusalText(refusal))});
}

void frmAnnuity::reportError(const common::RunTimeError& error) {
  desktop_.showMessage({.text = annuityErrorText(error.number(), cmdPrintToTape.visible())});
}

void frmAnnuity::clearAll() {
  for (TextBox* field : fields_.values) field->setText("");
  // A normal loan has no balloon payment.
  if (showing_->kind == common::AnnuityKind::Loan) fields_[Quantity::FutureValue]->setText("0");
  lblResultType.setCaption("Answer:");
  lblAnswer.setCaption("");
}

void frmAnnuity::showHelp() {
  constexpr int kContext = 1;
  constexpr int kTopic = 23;
  desktop_.showHelp({.caller = controls::HelpRequest::Caller::CommonDialog,
                     .file = program_.helpFile(),
                     .command = kContext,
                     .data = kTopic});
}

// The answer may no longer match the fields.
void frmAnnuity::withdrawPrint() {
  cmdPrintToTape.setVisible(false);
}

}  // namespace annuity
