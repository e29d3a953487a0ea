#include "shell/tape_options.h"

#include <algorithm>

#include "engine/tape_line.h"

namespace shell {

using controls::Rect;
using controls::Twips;

namespace {

// Below these sizes of the window the tape stops shrinking.
constexpr Twips kSmallestHeight = 1080;
constexpr Twips kSmallestWidth = 5835;
constexpr Twips kSmallestTapeHeight = 350;
constexpr Twips kSmallestTapeWidth = 1715;

}  // namespace

TapeOptions::TapeOptions(controls::Window& window, controls::Desktop& desktop)
    : window_(window),
      desktop_(desktop),
      txtTape_(window.textBox("txtTape")),
      txtEntry_(window.textBox("txtEntry")),
      chkTapeOff_(window.toggleButton("chkTapeOff")),
      mnuWinPadTape_(window.menuItem("mnuWinPadTape")),
      mnuWinTapeOff_(window.menuItem("mnuWinTapeOff")) {}

void TapeOptions::restore(const Settings& settings) {
  const bool off = settings.number("frmCalcchkTapeOff", 0) != 0;
  chkTapeOff_.setValue(off);
  mnuWinTapeOff_.setChecked(off);
  mnuWinPadTape_.setChecked(settings.truth("frmCalcmnuWinPadTape"));
}

void TapeOptions::save(Settings& settings) const {
  settings.writeNumber("frmCalcchkTapeOff", chkTapeOff_.value());
  settings.writeTruth("frmCalcmnuWinPadTape", mnuWinPadTape_.checked());
}

void TapeOptions::fitToWindow() {
  const Rect& bounds = window_.bounds();
  Rect tape = txtTape_.bounds();
  tape.height = std::max(bounds.height - kSmallestHeight, 0) + kSmallestTapeHeight;
  tape.width = std::max(bounds.width - kSmallestWidth, 0) + kSmallestTapeWidth;
  txtTape_.setBounds(tape);
}

void TapeOptions::togglePadding() {
  mnuWinPadTape_.setChecked(!mnuWinPadTape_.checked());
  applyPadding();
}

void TapeOptions::applyPadding() {
  const bool padded = mnuWinPadTape_.checked();
  const std::string tape = txtTape_.text();
  const bool figures = tape != engine::tapeHeader(false) && tape != engine::tapeHeader(true);
  if (!figures) {
    txtTape_.setText(engine::tapeHeader(padded));
  } else if (tape != tapeAtChange_) {
    desktop_.showMessage(
        {.text = "Changing the padding works best when the tape is cleared first."});
  }
  txtTape_.setAlignment(padded ? controls::Alignment::Left : controls::Alignment::Right);
  tapeAtChange_ = txtTape_.text();
}

void TapeOptions::offChanged() {
  mnuWinTapeOff_.setChecked(!mnuWinTapeOff_.checked());
  txtEntry_.setFocus();
}

}  // namespace shell
