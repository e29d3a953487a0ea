#include "engine/entry.h"

#include "common/number_pattern.h"
#include "common/number_text.h"
#include "common/run_time_error.h"
#include "engine/decimal_formats.h"
#include "engine/show_error.h"

namespace engine {

namespace {

constexpr controls::Twips kWidth = 2175;
constexpr controls::Twips kWidthOfALongTotal = 2300;

}  // namespace

std::optional<Amount> Entry::amountIn(const std::string& text) const {
  Amount amount = {.text = text};
  const bool isNumber =
      common::trap([&] { amount.value = common::toNumber(text); },
                   [&](const common::RunTimeError& error) { showError(desktop_, error.number()); });
  return isNumber ? std::optional(amount) : std::nullopt;
}

std::optional<Amount> Entry::take(std::string text) {
  if (text.starts_with('-') && common::tryNumber(text) == 0.0) {
    text.erase(0, 1);
    field_.rewrite(text, box_.selStart() - 1);
  }
  return amountIn(text);
}

void Entry::clear() {
  box_.setText("");
  origin_ = Origin::Digits;
  use_ = Use::Open;
}

void Entry::showValue(const std::string& text) {
  field_.reformat(text);
  box_.moveCaretToEnd();
  origin_ = Origin::Value;
}

void Entry::showPasted(const std::string& text) {
  showValue(text);
  use_ = Use::Open;
  if (!decimals_.floating() && text.find('.') != std::string::npos)
    origin_ = Origin::ValueWithPoint;
  reformat();
}

void Entry::showTotal(double total) {
  const std::string text = common::toText(total);
  showValue(decimals_.stationary() ? common::formatText(text, decimalsPattern(decimals_.places()))
                                   : text);
  box_.setWidth(box_.length() > kEntryLength ? kWidthOfALongTotal : kWidth);
  use_ = Use::Posted;
}

void Entry::finish() {
  if (use_ == Use::Open) use_ = Use::Result;
}

std::string Entry::settle() {
  if (isPosted()) return box_.text();
  repair();
  common::trap([&] { reformat(); }, [](const common::RunTimeError&) {});
  field_.dropLeadingCommas();
  return box_.text();
}

void Entry::format() {
  common::trap([&] { reformat(); },
               [&](const common::RunTimeError& error) { showError(desktop_, error.number()); });
}

void Entry::tidy() {
  format();
  field_.dropLeadingCommas();
}

void Entry::changeSign() {
  const std::string text = box_.text();
  if (text.empty()) return;
  const int caret = box_.selStart();
  if (hasSign(text)) {
    field_.rewrite(text.substr(1), caret - 1);
  } else {
    field_.rewrite("-" + text, caret + 1);
  }
  use_ = Use::Open;
}

void Entry::keyUp(controls::KeyCode key) {
  repair();
  if (!controls::isNavigationKey(key)) tidy();
}

// An entry that the user changes is open again, and counts as keyed digits.
void Entry::changed(controls::ChangedBy by) {
  if (by != controls::ChangedBy::User) return;
  origin_ = hasOwnPoint() ? Origin::PointKeyed : Origin::Digits;
  use_ = Use::Open;
}

// In a value that the program wrote, a minus inside belongs to the exponent.
bool Entry::hasSign(const std::string& text) const {
  return text.starts_with('-') || (!isValue() && text.find('-') != std::string::npos);
}

// Fixes a misplaced sign and misplaced separators.
void Entry::repair() {
  if (hasSign(box_.text())) field_.repairSign();
  field_.dropSeparatorsBehindPoint();
}

void Entry::reformat() {
  field_.reformat(formatted(box_.text()));
}

std::string Entry::formatted(std::string text) {
  if (decimals_.floating()) return formatFloating(text);
  const int places = decimals_.places();
  if (!decimals_.stationary()) return formatKeyed(text, places);
  if (isValue()) return formatValue(text, places);
  const auto point = text.find('.');
  if (point == std::string::npos) origin_ = Origin::Digits;
  if (origin_ == Origin::Digits) return formatStationary(text, places);
  // A keyed point replaces the one that scaling has inserted.
  if (point > 0 && text.find('.', point + 2) != std::string::npos) text.erase(point, 1);
  return formatKeyed(text, places);
}

}  // namespace engine
