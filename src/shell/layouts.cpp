#include <algorithm>

#include "common/number_text.h"
#include "engine/tape_line.h"
#include "shell/frm_calc.h"
#include "shell/frm_calc_layout.h"

namespace shell {

using controls::Rect;
using controls::Twips;

namespace {

// Below these sizes of the window the tape stops shrinking.
constexpr Twips kSmallestHeight = 1080;
constexpr Twips kSmallestWidth = 5835;
constexpr Twips kSmallestTapeHeight = 350;
constexpr Twips kSmallestTapeWidth = 1715;

constexpr Rect kNormalGeometry = {0, 0, 6690, 3525};
constexpr Rect kMicroGeometry = {0, 0, kMicroWidth, kMicroHeight};

}  // namespace

void frmCalc::Form_Resize() {
  const Rect& bounds = window_->bounds();
  Rect tape = txtTape.bounds();
  tape.height = std::max(bounds.height - kSmallestHeight, 0) + kSmallestTapeHeight;
  tape.width = std::max(bounds.width - kSmallestWidth, 0) + kSmallestTapeWidth;
  txtTape.setBounds(tape);
  if (!mblnResized) RestoreSettings();
}

void frmCalc::mnuWinMicroWindow_Click() {
  if (window_->state() == controls::WindowState::Maximized)
    window_->setState(controls::WindowState::Normal);
  const bool micro = !mnuWinMicroWindow.checked();
  mnuWinMicroWindow.setChecked(micro);
  if (micro) {
    ExchangeGeometry("frmCalc", "frmCalcMicro", kMicroGeometry);
  } else {
    ExchangeGeometry("frmCalcMicro", "frmCalc", kNormalGeometry);
  }
}

// Keeps the place and size of the layout that is left, and takes those of the other one.
void frmCalc::ExchangeGeometry(const std::string& from, const std::string& to,
                               const Rect& fallback) {
  const Rect& left = window_->bounds();
  store(from + "Left", common::toText(left.left));
  store(from + "Top", common::toText(left.top));
  store(from + "Height", common::toText(left.height));
  store(from + "Width", common::toText(left.width));
  window_->setLeft(storedTwips(to + "Left", fallback.left));
  window_->setTop(storedTwips(to + "Top", fallback.top));
  window_->setHeight(storedTwips(to + "Height", fallback.height));
  window_->setWidth(storedTwips(to + "Width", fallback.width));
}

void frmCalc::mnuWinPadTape_Click() {
  if (mblnActivated) mnuWinPadTape.setChecked(!mnuWinPadTape.checked());
  const bool padded = mnuWinPadTape.checked();
  const std::string tape = txtTape.text();
  const bool figures = tape != engine::tapeHeader(false) && tape != engine::tapeHeader(true);
  if (!figures) {
    txtTape.setText(engine::tapeHeader(padded));
  } else if (tape != mstrPadTapeText) {
    desktop_.showMessage(
        {.text = "Changing the padding works best when the tape is cleared first."});
  }
  txtTape.setAlignment(padded ? controls::Alignment::Left : controls::Alignment::Right);
  mstrPadTapeText = txtTape.text();
}

void frmCalc::mnuWinTapeOff_Click() {
  chkTapeOff.setValue(1 - chkTapeOff.value());
}

// The system's call moves and shrinks the window, so the old geometry is put back at once.
void frmCalc::mnuWinAlwaysOnTop_Click() {
  const Rect before = window_->bounds();
  if (mblnActivated) mnuWinAlwaysOnTop.setChecked(!mnuWinAlwaysOnTop.checked());
  window_->setOnTop(mnuWinAlwaysOnTop.checked());
  window_->setBounds(before);
}

}  // namespace shell
