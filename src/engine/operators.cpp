#include <cmath>

#include "common/number_text.h"
#include "engine/engine.h"

namespace engine {

using common::RunTimeError;

namespace {

// Not checked while the decimal floats: a floating total may be as large as a double holds.
constexpr double kLargestTotal = 999'999'999'999'999;

double finite(double value) {
  if (!std::isfinite(value)) throw RunTimeError(common::kOverflow);
  return value;
}

}  // namespace

void Engine::cmdPlus_Click() {
  PostWith("+");
}

void Engine::cmdMinus_Click() {
  PostWith("-");
}

void Engine::cmdTimes_Click() {
  StartProduct("X");
}

void Engine::cmdDivide_Click() {
  StartProduct("/");
}

// Takes the entry with an operator key. False when the key failed: then nothing is posted.
bool Engine::PostWith(std::string_view key) {
  const std::string before = mstrKey;
  mstrKey = key;
  if (!ProcessEntry()) {
    mstrKey = before;
    return false;
  }
  FormatEntry();
  c_.txtEntry.moveCaretToEnd();
  return true;
}

void Engine::StartProduct(std::string_view key) {
  if (!addMode()) {
    PostWith(key);
    return;
  }
  // The entry, or the total just taken, becomes the first operand.
  if ((!mblnPosted || mblnNewCalc) && !PostWith("+")) return;
  mintMode = kCalculatorMode;
  mblnTempCalc = true;
  mstrPendingOp = key;
  c_.txtEntry.setFocus();
}

bool Engine::ProcessEntry() {
  bool done = true;
  SettleEntry();
  if (mblnPosted && mblnShowingResult && addMode())
    field_.rewrite(common::toText(mdblLastEntry), c_.txtEntry.selStart());
  if (c_.txtEntry.text() == ".") {
    c_.txtEntry.setText("");
  } else if (!c_.txtEntry.text().empty()) {
    done = ApplyOperator();
    if (done) PostToTape();
  }
  c_.txtEntry.setFocus();
  return done;
}

// False when an error was reported; then the calculation stands where it stood.
bool Engine::ApplyOperator() {
  DropSignOfZero();
  return common::trap(
      [&] {
        if (addMode()) {
          Accumulate(common::toNumber(c_.txtEntry.text()));
        } else {
          Calculate();
        }
        CheckRange();
      },
      [&](const RunTimeError& error) { ShowError(error); });
}

void Engine::Accumulate(double entry) {
  if (mstrKey == "+" || mstrKey == "-") {
    mdblTotal = finite(mstrKey == "+" ? mdblTotal + entry : mdblTotal - entry);
    mstrTapeOp = mstrKey;
  }
  mblnNewCalc = false;
}

void Engine::Calculate() {
  const std::string text = c_.txtEntry.text();
  const double entry = common::toNumber(text);
  if (mstrKey != "S" && mblnNewCalc) {
    mblnNewCalc = false;
    mdblTotal = entry;
    mstrTapeOp = " ";
    mstrPendingOp = mstrKey;
    return;
  }
  if (mstrPendingOp == "/" && text == "0") {
    mstrErrText = " divide by zero.";
    c_.txtEntry.setText("Error");
  } else {
    mdblTotal = Result(entry);
  }
  mstrTapeOp = mstrPendingOp;
  mstrPendingOp = mstrKey;
}

double Engine::Result(double entry) const {
  if (mstrPendingOp == "+") return finite(entry + mdblTotal);
  if (mstrPendingOp == "-") return finite(mdblTotal - entry);
  if (mstrPendingOp == "X") return finite(entry * mdblTotal);
  if (mstrPendingOp == "/") {
    if (entry == 0) throw RunTimeError(common::kDivisionByZero);
    return finite(mdblTotal / entry);
  }
  if (mstrPendingOp == "S") {
    if (entry < 0) throw RunTimeError(common::kInvalidProcedureCall);
    return std::sqrt(entry);
  }
  return mdblTotal;
}

void Engine::CheckRange() {
  if (floatingDecimal() || std::abs(mdblTotal) <= kLargestTotal) return;
  mstrErrText = " result too large";
  c_.txtEntry.setText("Error");
}

void Engine::cmdPercent_Click() {
  common::trap(
      [&] {
        if (c_.txtEntry.text().empty()) return;
        if (!mblnValue) SettleEntry();
        ShowValue(common::toText(common::toNumber(c_.txtEntry.text()) * 0.01));
        mblnPosted = false;
        mblnShowingResult = true;
        FormatEntry();
        if (mblnTempCalc) Total();
      },
      [&](const RunTimeError& error) { ShowError(error); });
  focusEntryAtEnd();
}

void Engine::cmdSquareRoot_Click() {
  if (entryIsBlank()) {
    c_.desktop.showMessage(
        {.text = "There must be an entry before running a square root function."});
  } else {
    TakeSquareRoot();
  }
  c_.txtEntry.setFocus();
}

bool Engine::TakeSquareRoot() {
  const bool calculationOpen = mstrPendingOp != "*" && !mstrPendingOp.empty();
  if (calculationOpen && !Total()) return false;
  const std::string keyBefore = mstrKey;
  const std::string pendingBefore = mstrPendingOp;
  mstrKey = mstrPendingOp = "S";
  if (!ProcessEntry()) {
    mstrKey = keyBefore;
    mstrPendingOp = pendingBefore;
    return false;
  }
  FormatEntry();
  const bool done = Total();
  // The root is done; the next number starts a calculation of its own.
  mstrKey.clear();
  return done;
}

void Engine::cmdChangeSign_Click() {
  const std::string text = c_.txtEntry.text();
  const int caret = c_.txtEntry.selStart();
  if (!text.empty()) {
    if (HasSign(text)) {
      field_.rewrite(text.substr(1), std::max(caret - 1, 0));
    } else {
      field_.rewrite("-" + text, caret + 1);
    }
    mblnShowingResult = mblnPosted = false;
  }
  c_.txtEntry.setFocus();
}

}  // namespace engine
