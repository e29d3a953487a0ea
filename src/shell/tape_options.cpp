#include "shell/tape_options.h"

#include <algorithm>

#include "engine/tape_line.h"

namespace shell {

using controls::Rect;
using controls::Twips;

namespace {

// In a window smaller than this, the tape stops shrinking.
constexpr Twips kSmallestHeight = 1080;
constexpr Twips kSmallestWidth = 5835;
constexpr Twips kSmallestTapeHeight = 350;
constexpr Twips kSmallestTapeWidth = 1715;

}  // namespace

TapeOptions::TapeOptions(const controls::Window& window, const engine::MachineControls& controls)
    : window_(window), controls_(controls), mnuWinTapeOff_(window.menuItem("mnuWinTapeOff")) {}

void TapeOptions::restore(const Settings& settings) {
  controls_.chkTapeOff.setValue(settings.number("frmCalcchkTapeOff", 0) != 0);
  controls_.mnuWinPadTape.setChecked(settings.truth("frmCalcmnuWinPadTape"));
}

void TapeOptions::save(Settings& settings) const {
  settings.writeNumber("frmCalcchkTapeOff", controls_.chkTapeOff.value());
  settings.writeTruth("frmCalcmnuWinPadTape", controls_.mnuWinPadTape.checked());
}

void TapeOptions::fitToWindow() {
  const Rect& bounds = window_.bounds();
  Rect tape = controls_.txtTape.bounds();
  tape.height = std::max(bounds.height - kSmallestHeight, 0) + kSmallestTapeHeight;
  tape.width = std::max(bounds.width - kSmallestWidth, 0) + kSmallestTapeWidth;
  controls_.txtTape.setBounds(tape);
}

void TapeOptions::togglePadding() {
  controls_.mnuWinPadTape.setChecked(!controls_.mnuWinPadTape.checked());
  applyPadding();
}

void TapeOptions::applyPadding() {
  const bool padded = controls_.mnuWinPadTape.checked();
  const std::string tape = controls_.txtTape.text();
  const bool figures = tape != engine::tapeHeader(false) && tape != engine::tapeHeader(true);
  if (!figures) {
    controls_.txtTape.setText(engine::tapeHeader(padded));
  } else if (tape != tapeAtChange_) {
    controls_.desktop.showMessage(
        {.text = "Changing the padding works best when the tape is cleared first."});
  }
  controls_.txtTape.setAlignment(padded ? controls::Alignment::Left : controls::Alignment::Right);
  tapeAtChange_ = controls_.txtTape.text();
}

void TapeOptions::offChanged() {
  mnuWinTapeOff_.setChecked(!mnuWinTapeOff_.checked());
  controls_.txtEntry.setFocus();
}

}  // namespace shell
