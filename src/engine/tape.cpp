#include "common/number_pattern.h"
#include "common/number_text.h"
#include "engine/engine.h"
#include "engine/entry_format.h"
#include "engine/tape_line.h"

namespace engine {

namespace {

constexpr controls::Twips kEntryWidth = 2175;
constexpr controls::Twips kLongEntryWidth = 2300;

}  // namespace

// Writes the entry on the tape and moves the running total into the entry box.
void Engine::PostToTape() {
  if (c_.txtEntry.text() == "Error") {
    PostError();
    return;
  }
  c_.mnuWinModes.setEnabled(false);
  c_.mnuWinModes.setCaption("Modes (equals to enable)");
  if (c_.txtDec.text().empty()) c_.txtDec.setText("0");
  const std::string pattern = decimalsPattern(places());
  const std::string entry = c_.txtEntry.text();
  const bool padded = c_.mnuWinPadTape.checked();
  const bool total = mstrTapeOp == "*";
  std::string lines =
      "\r\n" + tapeLine(floatingDecimal() ? entry : common::formatText(entry, pattern), mstrTapeOp,
                        padded, floatingDecimal());
  if (total) lines += "\r\n" + tapeSeparator(padded);
  AppendToTape(lines);
  if (total) EndCalculation();

  mblnShowingResult = true;
  mblnDecKeyed = false;
  mdblLastEntry = common::toNumber(entry);
  const std::string result = common::toText(mdblTotal);
  ShowValue(stationaryDecimal() ? common::formatText(result, pattern) : result);
  c_.txtEntry.setWidth(c_.txtEntry.length() > kEntryLength ? kLongEntryWidth : kEntryWidth);
  mblnPosted = true;
  c_.txtEntry.setFocus();
}

// The entry is "Error": that is logged, and the calculation begins anew.
void Engine::PostError() {
  AppendToTape("\r\nError:" + mstrErrText + "\r\n");
  ClearCalculation();
  c_.desktop.showMessage({.text = "The entry caused an error: " + mstrErrText});
  c_.txtEntry.setFocus();
}

void Engine::AppendToTape(const std::string& lines) {
  if (c_.chkTapeOff.value() == 0) c_.txtTape.append(lines);
}

void Engine::cmdClearTape_Click() {
  c_.txtTape.setText(tapeHeader(c_.mnuWinPadTape.checked()));
  c_.txtEntry.setFocus();
}

}  // namespace engine
