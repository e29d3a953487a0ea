#include "engine/adding_machine.h"

#include <algorithm>
#include <array>

namespace engine {

using controls::KeyAscii;

namespace {

struct KeyCommand {
  KeyAscii key;
  void (AddingMachine::*run)();
};

constexpr std::array kKeyCommands = {
    KeyCommand{controls::kKeyEnter, &AddingMachine::equals},
    KeyCommand{'+', &AddingMachine::plus},
    KeyCommand{'-', &AddingMachine::minus},
    KeyCommand{'/', &AddingMachine::divide},
    KeyCommand{'*', &AddingMachine::times},
    KeyCommand{'N', &AddingMachine::changeSign},
    KeyCommand{'n', &AddingMachine::changeSign},
    KeyCommand{'P', &AddingMachine::percent},
    KeyCommand{'p', &AddingMachine::percent},
};

}  // namespace

AddingMachine::AddingMachine(const MachineControls& c)
    : desktop_(c.desktop),
      mnuWinModes_(c.mnuWinModes),
      decimals_(c),
      entry_(c.txtEntry, decimals_, c.desktop),
      entryPaste_(entry_, decimals_, c.desktop),
      memory_(entry_, c.cmdMemPlus, c.desktop),
      tape_(c.txtTape, c.mnuWinPadTape, c.chkTapeOff, decimals_) {}

void AddingMachine::keyPress(KeyAscii& key) {
  if (key == controls::kKeyBackspace) {
    entry_.stepOverSeparator();
  } else if (runKey(key)) {
    key = 0;
  } else if (!entry_.accepts(key)) {
    desktop_.beep();
    key = 0;
  }
}

bool AddingMachine::runKey(KeyAscii key) {
  const auto command =
      std::ranges::find_if(kKeyCommands, [key](const auto& each) { return each.key == key; });
  if (command != kKeyCommands.end()) {
    (this->*command->run)();
    return true;
  }
  // Add mode has no square root, not even during a multiplication.
  if (mode_ != Mode::Calculator || (key != 'S' && key != 's')) return false;
  squareRoot();
  return true;
}

void AddingMachine::chooseMode(Mode mode) {
  mode_ = mode_ == Mode::Product ? Mode::Add : mode;
  calculation_.clearTotal();
}

void AddingMachine::changeSign() {
  entry_.changeSign();
  entry_.setFocus();
}

void AddingMachine::clearEntry() {
  entry_.clear();
  entry_.setFocus();
}

void AddingMachine::clearTotal() {
  if (mode_ == Mode::Product) mode_ = Mode::Add;
  calculation_.clearTotal();
  postToTape({amountOf(0), Mark::Total});
  entry_.takeAsResult();
}

void AddingMachine::clearTape() {
  tape_.clear();
  entry_.setFocus();
}

void AddingMachine::clearAll() {
  clearTotal();
  clearEntry();
  clearTape();
}

}  // namespace engine
