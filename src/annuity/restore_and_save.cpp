#include <cmath>
#include <limits>

#include "annuity/frm_annuity.h"
#include "common/number_text.h"
#include "common/settings_store.h"

namespace annuity {

using controls::TextBox;
using controls::Twips;

namespace {

constexpr std::string_view kPlaceSection = "Settings";
constexpr std::string_view kSection = "Annuity";

// The first time, the window opens this far right of and below the corner of the main window.
constexpr Twips kBesideMainWindow = 400;

// The position in a setting; `designed` if it is out of the range of a single-precision number.
Twips placeOf(double stored, Twips designed) {
  if (std::abs(stored) > std::numeric_limits<float>::max()) return designed;
  return controls::clampedTwips(stored);
}

}  // namespace

void frmAnnuity::load(common::AnnuityKind kind) {
  writeCaptions();
  const controls::Rect main = program_.mainWindowPlace();
  applyConfiguration(configurationOf(kind));
  restorePlace(main);
  restoreFields();
  restored_ = true;
}

void frmAnnuity::writeCaptions() {
  const auto setCaption = [this](std::string_view name, std::string_view caption) {
    window_->control(name).setCaption(caption);
  };
  setCaption("optNper(0)", "&Months");
  setCaption("optNper(1)", "&Years");
  setCaption("cmdCalculate", "Calculate");
  setCaption("lblResultType", "Answer:");
  setCaption("optDue(0)", "the end (default)");
  setCaption("optDue(1)", "the beginning");
}

// A stored text that is not a number leaves the designed position.
void frmAnnuity::restorePlace(const controls::Rect& main) {
  const auto stored = [this](std::string_view edge, Twips fallback, Twips designed) {
    const std::string key = std::string(edge) + window_->name();
    const auto text = desktop_.settings().read(kPlaceSection, key);
    if (!text) return fallback;
    const auto number = common::tryNumber(*text);
    return number ? placeOf(*number, designed) : designed;
  };
  const controls::Rect designed = window_->bounds();
  window_->setLeft(stored("Left", main.left + kBesideMainWindow, designed.left));
  window_->setTop(stored("Top", main.top + kBesideMainWindow, designed.top));
}

void frmAnnuity::restoreFields() {
  const common::SettingsStore& settings = desktop_.settings();
  optTermInMonths.setValue(common::readTruth(settings, kSection, "OptNper0", true));
  optTermInYears.setValue(common::readTruth(settings, kSection, "OptNper1", false));
  for (const Quantity quantity : kQuantities) {
    TextBox& field = *fields_[quantity];
    const std::string_view fallback = quantity == Quantity::FutureValue ? "0" : "";
    field.setText(common::readText(settings, kSection, field.name(), fallback));
  }
}

void frmAnnuity::unload() {
  save();
  program_.unloadAnnuity();
}

void frmAnnuity::save() {
  if (!restored_) return;
  common::SettingsStore& settings = desktop_.settings();
  const controls::Rect& place = window_->bounds();
  settings.write(kPlaceSection, "Left" + window_->name(), common::toText(place.left));
  settings.write(kPlaceSection, "Top" + window_->name(), common::toText(place.top));
  settings.write(kSection, "OptNper0", common::truthText(optTermInMonths.value()));
  settings.write(kSection, "OptNper1", common::truthText(optTermInYears.value()));
  for (const TextBox* field : fields_.values)
    settings.write(kSection, field->name(), field->text());
}

}  // namespace annuity
