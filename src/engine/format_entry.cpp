#include <algorithm>

#include "common/number_text.h"
#include "engine/engine.h"
#include "engine/entry_format.h"

namespace engine {

namespace {

// A digit typed in front of the sign would be lost.
int behindSign(int caret, const std::string& text) {
  return std::max(caret, text.starts_with('-') ? 1 : 0);
}

}  // namespace

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
  const std::string text = FormattedEntry(c_.txtEntry.text());
  if (text == c_.txtEntry.text()) return;
  const int length = c_.txtEntry.length();
  const int caret = c_.txtEntry.selStart();
  c_.txtEntry.setText(text);
  const int moved = caret + c_.txtEntry.length() - length;
  c_.txtEntry.setSelStart(behindSign(moved >= 0 ? moved : caret, text));
}

// What the release of the last key would have done, for a key that goes down before it. An entry
// that is no number is reported by the key that takes it.
void Engine::SettleEntry() {
  if (mblnPosted) return;
  RepairSign();
  common::trap([&] { ReformatEntry(); }, [](const common::RunTimeError&) {});
  DropLeadingCommas();
}

void Engine::RewriteEntry(const std::string& text, int caret) {
  if (text == c_.txtEntry.text()) return;
  c_.txtEntry.setText(text);
  c_.txtEntry.setSelStart(behindSign(caret, text));
}

void Engine::ShowValue(const std::string& text) {
  RewriteEntry(text, 0);
  c_.txtEntry.moveCaretToEnd();
  mblnValue = true;
  mblnDecKeyed = false;
}

// In a number that the program wrote, a minus inside belongs to its exponent.
bool Engine::HasSign(const std::string& text) const {
  return text.starts_with('-') || (!mblnValue && text.find('-') != std::string::npos);
}

// A character typed in front of the sign gives way.
void Engine::RepairSign() {
  const std::string text = c_.txtEntry.text();
  if (!HasSign(text) || text.starts_with('-')) return;
  RewriteEntry(text.substr(1), c_.txtEntry.selStart() - 1);
}

void Engine::DropLeadingCommas() {
  const std::string text = c_.txtEntry.text();
  const auto commas = std::min(text.find_first_not_of(','), text.size());
  RewriteEntry(text.substr(commas), c_.txtEntry.selStart() - static_cast<int>(commas));
}

// The minus in front of typed zeros waited for digits that did not come.
void Engine::DropSignOfZero() {
  const std::string text = c_.txtEntry.text();
  if (text.starts_with('-') && common::tryNumber(text) == 0.0)
    RewriteEntry(text.substr(1), c_.txtEntry.selStart() - 1);
}

void Engine::TidyEntry() {
  FormatEntry();
  DropLeadingCommas();
}

}  // namespace engine
