#include "annuity/frm_annuity.h"

#include <cmath>
#include <limits>

#include "annuity/frm_annuity_layout.h"
#include "common/number_text.h"
#include "common/settings_store.h"

namespace annuity {

using controls::TextBox;
using controls::Twips;

namespace {

constexpr std::string_view kPlaceSection = "Settings";
constexpr std::string_view kSection = "Annuity";

// A first window opens below the corner of the main window, at its right.
constexpr Twips kBesideMainWindow = 400;

// The place that a setting gives; where it is no single-precision number, the one `designed`.
Twips placeOf(double stored, Twips designed) {
  if (std::abs(stored) > std::numeric_limits<float>::max()) return designed;
  return controls::clampedTwips(stored);
}

}  // namespace

frmAnnuity::frmAnnuity(controls::Desktop& desktop, const shell::Globals& globals, Program& program)
    : desktop_(desktop),
      globals_(globals),
      program_(program),
      window_(desktop.createWindow(frmAnnuityLayout())),
      txtNper(window_->textBox("txtNper")),
      txtRate(window_->textBox("txtRate")),
      txtPmt(window_->textBox("txtPmt")),
      txtPV(window_->textBox("txtPV")),
      txtFV(window_->textBox("txtFV")),
      optNper{&window_->optionButton("optNper(0)"), &window_->optionButton("optNper(1)")},
      cmdPrintToTape(window_->button("cmdPrintToTape")),
      lblResultType(window_->control("lblResultType")),
      lblAnswer(window_->control("lblAnswer")) {
  wireFields();
  wireButtons();
  window_->onClose = [this] { unload(); };
  Form_Load();
}

void frmAnnuity::wireFields() {
  using controls::KeyAscii;
  using controls::KeyCode;
  for (TextBox* field : {&txtNper, &txtRate, &txtPmt, &txtPV, &txtFV}) {
    field->onChange = [this](controls::ChangedBy) { WithdrawPrint(); };
    field->onGotFocus = [this, field] { Field_GotFocus(*field); };
    field->onLostFocus = [field] { field->setBackColor(controls::Color::window()); };
  }
  for (TextBox* field : {&txtNper, &txtRate})
    field->onKeyPress = [this, field](KeyAscii& key) { Field_KeyPress(*field, key); };
  for (TextBox* field : {&txtPmt, &txtPV, &txtFV}) {
    field->onKeyPress = [this, field](KeyAscii& key) { MoneyField_KeyPress(*field, key); };
    field->onKeyUp = [this, field](KeyCode key) { MoneyField_KeyUp(*field, key); };
  }
}

void frmAnnuity::wireButtons() {
  const auto option = [this](std::string_view name) -> controls::OptionButton& {
    return window_->optionButton(name);
  };
  option("optNper(0)").onClick = [this] { WithdrawPrint(); };
  option("optNper(1)").onClick = [this] { WithdrawPrint(); };
  option("optDue(0)").onClick = [this] { optDue_Click(0); };
  option("optDue(1)").onClick = [this] { optDue_Click(1); };
  for (const auto* name : {"optNper(0)", "optNper(1)", "optDue(0)", "optDue(1)"})
    option(name).onKeyPress = [this](controls::KeyAscii& key) { EnterAsTab(key); };
  window_->button("cmdCalculate").onClick = [this] { cmdCalculate_Click(); };
  window_->button("cmdRotateLabels").onClick = [this] { cmdRotateLabels_Click(); };
  window_->button("cmdClearAll").onClick = [this] { cmdClearAll_Click(); };
  window_->button("cmdHelp").onClick = [this] { cmdHelp_Click(); };
  cmdPrintToTape.onClick = [this] { cmdPrintToTape_Click(); };
}

void frmAnnuity::Form_Load() {
  const auto setCaption = [this](std::string_view name, std::string_view caption) {
    window_->control(name).setCaption(caption);
  };
  setCaption("optNper(0)", "&Months");
  setCaption("optNper(1)", "&Years");
  setCaption("cmdCalculate", "Calculate");
  lblAnswer.setCaption("");
  lblResultType.setCaption("Answer:");
  setCaption("optDue(0)", "the end (default)");
  setCaption("optDue(1)", "the beginning");
  cmdRotateLabels_Click();
  RestorePlace();
  RestoreFields();
}

// A stored text that is no number leaves the place as it is designed.
void frmAnnuity::RestorePlace() {
  const auto stored = [this](std::string_view edge, Twips fallback, Twips designed) {
    const std::string key = std::string(edge) + window_->name();
    const auto text = desktop_.settings().read(kPlaceSection, key);
    if (!text) return fallback;
    const auto number = common::tryNumber(*text);
    return number ? placeOf(*number, designed) : designed;
  };
  const controls::Rect main = program_.mainWindowPlace();
  const controls::Rect designed = window_->bounds();
  window_->setLeft(stored("Left", main.left + kBesideMainWindow, designed.left));
  window_->setTop(stored("Top", main.top + kBesideMainWindow, designed.top));
}

void frmAnnuity::RestoreFields() {
  const common::SettingsStore& settings = desktop_.settings();
  optNper[0]->setValue(common::readTruth(settings, kSection, "OptNper0", true));
  optNper[1]->setValue(common::readTruth(settings, kSection, "OptNper1", false));
  for (TextBox* field : {&txtNper, &txtRate, &txtPmt, &txtPV})
    field->setText(common::readText(settings, kSection, field->name(), ""));
  txtFV.setText(common::readText(settings, kSection, "txtFV", "0"));
}

void frmAnnuity::unload() {
  Form_Unload();
  program_.unloadAnnuity();
}

void frmAnnuity::Form_Unload() {
  common::SettingsStore& settings = desktop_.settings();
  const controls::Rect& place = window_->bounds();
  settings.write(kPlaceSection, "Left" + window_->name(), common::toText(place.left));
  settings.write(kPlaceSection, "Top" + window_->name(), common::toText(place.top));
  settings.write(kSection, "OptNper0", common::truthText(optNper[0]->value()));
  settings.write(kSection, "OptNper1", common::truthText(optNper[1]->value()));
  for (TextBox* field : {&txtNper, &txtRate, &txtPmt, &txtPV, &txtFV})
    settings.write(kSection, field->name(), field->text());
}

void frmAnnuity::cmdClearAll_Click() {
  for (TextBox* field : {&txtNper, &txtRate, &txtPmt, &txtPV, &txtFV}) field->setText("");
  // A normal loan has no balloon payment.
  if (showing().code == kLoan) txtFV.setText("0");
  lblResultType.setCaption("Answer:");
  lblAnswer.setCaption("");
}

void frmAnnuity::cmdHelp_Click() {
  constexpr int kContext = 1;
  constexpr int kTopic = 23;
  desktop_.showHelp({.caller = controls::HelpRequest::Caller::CommonDialog,
                     .file = globals_.helpFile,
                     .command = kContext,
                     .data = kTopic});
}

}  // namespace annuity
