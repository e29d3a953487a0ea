#include <algorithm>
#include <array>
#include <cctype>

#include "engine/engine.h"
#include "engine/entry_format.h"

namespace engine {

using controls::KeyAscii;
using controls::KeyCode;

namespace {

constexpr int kStationaryDigits = 15;
constexpr KeyAscii kCtrlV = 22;
constexpr KeyCode kKeyDecimalPoint = 190;

struct KeyCommand {
  KeyAscii key;
  void (Engine::*run)();
};

constexpr std::array kKeyCommands = {
    KeyCommand{controls::kKeyEnter, &Engine::cmdEquals_Click},
    KeyCommand{'+', &Engine::cmdPlus_Click},
    KeyCommand{'-', &Engine::cmdMinus_Click},
    KeyCommand{'/', &Engine::cmdDivide_Click},
    KeyCommand{'*', &Engine::cmdTimes_Click},
    KeyCommand{'N', &Engine::cmdChangeSign_Click},
    KeyCommand{'n', &Engine::cmdChangeSign_Click},
    KeyCommand{'P', &Engine::cmdPercent_Click},
    KeyCommand{'p', &Engine::cmdPercent_Click},
};

bool hasPoint(const std::string& text) {
  return text.find('.') != std::string::npos;
}

int charactersBehindPoint(const std::string& text) {
  return static_cast<int>(text.size() - text.find('.')) - 1;
}

// Zeros in front take no room: they are not part of the number.
int significantDigits(const std::string& text) {
  const auto isDigit = [](unsigned char c) { return std::isdigit(c) != 0; };
  const auto first = std::ranges::find_if(text, [](char c) { return c >= '1' && c <= '9'; });
  return static_cast<int>(std::count_if(first, text.end(), isDigit));
}

}  // namespace

void Engine::txtEntry_KeyPress(KeyAscii& key) {
  const bool done = common::trap(
      [&] {
        if (key == controls::kKeyBackspace) {
          field_.stepOverSeparator();
        } else if (RunKey(key)) {
          key = 0;
        } else if (!AcceptsCharacter(key)) {
          c_.desktop.beep();
          key = 0;
        }
      },
      [&](const common::RunTimeError& error) { ShowError(error); });
  if (!done) key = 0;
}

bool Engine::RunKey(KeyAscii key) {
  const auto command =
      std::ranges::find_if(kKeyCommands, [key](const auto& entry) { return entry.key == key; });
  if (command != kKeyCommands.end()) {
    (this->*command->run)();
    return true;
  }
  // Add mode knows no square root, not even while it computes a product.
  if (mintMode != kCalculatorMode || mblnTempCalc || (key != 'S' && key != 's')) return false;
  cmdSquareRoot_Click();
  return true;
}

bool Engine::AcceptsCharacter(KeyAscii key) {
  if (mblnShowingResult) {
    c_.txtEntry.setText("");
    mblnShowingResult = mblnPosted = mblnValue = false;
  }
  const std::string text = c_.txtEntry.textWithoutSelection();
  if (floatingDecimal() || places() > 0) {
    if (text.size() >= kEntryLength) return false;
    if (key == '.' && AcceptsPoint(text)) {
      mblnDecKeyed = true;
      return true;
    }
  }
  if (key == kCtrlV) return true;
  return key >= '0' && key <= '9' && AcceptsDigit(text);
}

// In stationary decimal the point that is shown is not one that was keyed.
bool Engine::AcceptsPoint(const std::string& text) const {
  return !hasPoint(text) || (stationaryDecimal() && !mblnDecKeyed && !mblnValue);
}

bool Engine::AcceptsDigit(const std::string& text) const {
  const bool keyed = !stationaryDecimal() || mblnDecKeyed;
  if (!floatingDecimal() && keyed && hasPoint(text) && charactersBehindPoint(text) == places())
    return false;
  if (stationaryDecimal() && significantDigits(text) >= kStationaryDigits) return false;
  return text.size() < kEntryLength;
}

void Engine::txtEntry_KeyUp(KeyCode key) {
  RepairSign();
  if (!controls::isNavigationKey(key)) TidyEntry();
}

// What the user changes is a fresh entry, and digits as keyed.
void Engine::txtEntry_Change(controls::ChangedBy by) {
  if (by == controls::ChangedBy::User) mblnShowingResult = mblnPosted = mblnValue = false;
}

void Engine::cmdNumber_Click(int index) {
  c_.txtEntry.setFocus();
  c_.txtEntry.window().sendKey('0' + index, '0' + index);
}

void Engine::cmdPeriod_Click() {
  c_.txtEntry.setFocus();
  c_.txtEntry.window().sendKey(kKeyDecimalPoint, '.');
}

void Engine::cmdArrow_Click() {
  c_.txtEntry.setFocus();
  c_.txtEntry.window().sendKey(controls::kKeyBackspace, controls::kKeyBackspace);
}

}  // namespace engine
