#pragma once

#include <string>

#include "engine/calculation.h"
#include "engine/decimals.h"
#include "engine/entry.h"
#include "engine/entry_paste.h"
#include "engine/machine_controls.h"
#include "engine/memory.h"
#include "engine/tape.h"

namespace engine {

/// The numbers are those of the settings and of the items of the Modes menu. Product is add mode
/// during the one calculation that x or / starts there: until its total the machine calculates.
enum class Mode { Add = 0, Calculator = 1, Product };

/// The adding machine: what each of its keys does. It is given its controls and never knows whether
/// they are on a screen.
class AddingMachine {
 public:
  explicit AddingMachine(const MachineControls& controls);

  /// Adds the entry, or takes it off. In add mode a total just shown is not taken again: the last
  /// amount is repeated. In calculator mode the operator waits for the next entry.
  void plus();
  void minus();
  /// In add mode the entry is added first, and the next one multiplies or divides it.
  void times();
  void divide();
  /// Prints the total. An entry that add mode has not been told to add or take off is asked for.
  void equals();
  /// A hundredth of the entry; ends the one calculation of add mode.
  void percent();
  /// Prints the entry and its root, once an open calculation is closed.
  void squareRoot();
  void changeSign();

  /// None of these clears the memory.
  void clearEntry();
  void clearTotal();
  void clearTape();
  void clearAll();

  /// A character of the entry box: runs its key, or judges it; sets it to 0 when it is not to be
  /// typed.
  void keyPress(controls::KeyAscii& key);

  /// The mode that the user chose: Add or Calculator.
  Mode chosenMode() const { return mode_ == Mode::Calculator ? mode_ : Mode::Add; }
  /// The running total begins again.
  void chooseMode(Mode mode);

  Entry& entry() { return entry_; }
  EntryPaste& entryPaste() { return entryPaste_; }
  Memory& memory() { return memory_; }

 private:
  bool addMode() const { return mode_ == Mode::Add; }
  bool runKey(controls::KeyAscii key);
  bool postWith(Operator key);
  void startProduct(Operator key);
  bool processEntry(Operator key);
  bool applyOperator(const Amount& amount, Operator key);
  bool takeEntry(const std::string& text, Operator key);
  bool total();
  bool printEntryAndTotal(const std::string& text);
  bool printShown();
  bool printShownAsTotal();
  void takeSquareRoot();
  void showPercent(const Amount& amount);
  bool entryIsTyped(const std::string& text) const;
  void askForPlusOrMinus(const std::string& text);
  void clearCalculation();

  void postToTape(const TapeLine& line);
  void postFailure(const Failure& failure);
  void lockModes(bool locked);

  controls::Desktop& desktop_;
  controls::MenuItem& mnuWinModes_;
  Decimals decimals_;
  Entry entry_;
  EntryPaste entryPaste_;
  Memory memory_;
  Tape tape_;
  Calculation calculation_;
  double lastAmount_ = 0;
  Mode mode_ = Mode::Calculator;
};

}  // namespace engine
