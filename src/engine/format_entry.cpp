#include "common/number_text.h"
#include "engine/engine.h"
#include "engine/entry_format.h"

namespace engine {

void Engine::FormatEntry() {
  common::trap([&] { ReformatEntry(); },
               [&](const common::RunTimeError& error) { ShowError(error); });
}

std::string Engine::FormattedEntry(std::string text) {
  if (floatingDecimal()) return formatFloating(text);
  if (!stationaryDecimal()) return formatKeyed(text, places());
  if (mblnValue) return formatValue(text, places());
  const auto point = text.find('.');
  if (point == std::string::npos) mblnDecKeyed = false;
  if (!mblnDecKeyed) return formatStationary(text, places());
  // The point that scaling has shown gives way to the one keyed behind it.
  if (point > 0 && text.find('.', point + 2) != std::string::npos) text.erase(point, 1);
  return formatKeyed(text, places());
}

void Engine::ReformatEntry() {
  field_.reformat(FormattedEntry(c_.txtEntry.text()));
}

// What the release of the last key would have done, for a key that goes down before it. An entry
// that is no number is reported by the key that takes it.
void Engine::SettleEntry() {
  if (mblnPosted) return;
  RepairSign();
  common::trap([&] { ReformatEntry(); }, [](const common::RunTimeError&) {});
  field_.dropLeadingCommas();
}

void Engine::ShowValue(const std::string& text) {
  field_.rewrite(text, 0);
  c_.txtEntry.moveCaretToEnd();
  mblnValue = true;
  mblnDecKeyed = false;
}

// In a number that the program wrote, a minus inside belongs to its exponent.
bool Engine::HasSign(const std::string& text) const {
  return text.starts_with('-') || (!mblnValue && text.find('-') != std::string::npos);
}

void Engine::RepairSign() {
  if (HasSign(c_.txtEntry.text())) field_.repairSign();
}

// The minus in front of typed zeros waited for digits that did not come.
void Engine::DropSignOfZero() {
  const std::string text = c_.txtEntry.text();
  if (text.starts_with('-') && common::tryNumber(text) == 0.0)
    field_.rewrite(text.substr(1), c_.txtEntry.selStart() - 1);
}

void Engine::TidyEntry() {
  FormatEntry();
  field_.dropLeadingCommas();
}

}  // namespace engine
