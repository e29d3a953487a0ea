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

/// The numbers are those in the settings and in the names of the Modes menu items. Product is add
/// mode during a multiplication or division: until its total the machine works as in calculator
/// mode.
enum class Mode { Add = 0, Calculator = 1, Product };

/// The adding machine: what each of its keys does. It is given its controls, and does not know
/// whether they are on a screen.
class AddingMachine {
 public:
  explicit AddingMachine(const MachineControls& controls);

  /// Adds or subtracts the entry. In add mode, after a posting, the last amount is repeated. In
  /// calculator mode the operator waits for the next entry.
  void plus();
  void minus();
  /// In add mode the entry is posted first, and then multiplied or divided by the next.
  void times();
  void divide();
  /// Prints the total. In add mode an entry that has not been posted is refused with a message.
  void equals();
  /// Divides the entry by 100; in add mode this ends a multiplication or division.
  void percent();
  /// Closes an open calculation, then prints the entry and its square root.
  void squareRoot();
  void changeSign();

  /// None of these clears the memory.
  void clearEntry();
  void clearTotal();
  void clearTape();
  void clearAll();

  /// A character typed into the entry box: runs the function of that key, or checks the character;
  /// set to 0 if it is not to be typed.
  void keyPress(controls::KeyAscii& key);

  /// The mode that the user has chosen: Add or Calculator.
  Mode chosenMode() const { return mode_ == Mode::Calculator ? mode_ : Mode::Add; }
  /// Clears the running total. A multiplication or division that waits for its first operand ends
  /// instead, in add mode.
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
  void printShown();
  void printShownAsTotal();
  void takeSquareRoot();
  void showPercent(const Amount& amount);
  bool entryIsTyped(const std::string& text) const;
  void askForPlusOrMinus(const std::string& text);

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
