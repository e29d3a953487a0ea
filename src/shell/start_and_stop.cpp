#include "common/number_text.h"
#include "shell/frm_calc.h"

namespace shell {

using controls::Twips;

namespace {

constexpr std::string_view kSection = "Settings";
constexpr std::uint32_t kDefaultTextBackColor = 16777088;

std::string chooseHelpFile(controls::Desktop& desktop) {
  const std::string folder = desktop.programFolder();
  const std::string file = desktop.programName() + ".hlp";
  // Only a drive's root ends in a backslash of its own.
  if (folder.size() == 3) return folder + file;
  const std::string inHelpFolder = folder + "\\help\\" + file;
  return desktop.fileExists(inHelpFolder) ? inHelpFolder : folder + "\\" + file;
}

}  // namespace

double frmCalc::storedNumber(const std::string& key, double fallback) const {
  return common::readNumber(desktop_.settings(), kSection, key, fallback);
}

Twips frmCalc::storedTwips(const std::string& key, Twips fallback) const {
  return controls::clampedTwips(storedNumber(key, fallback));
}

bool frmCalc::storedTruth(const std::string& key) const {
  return common::readTruth(desktop_.settings(), kSection, key, false);
}

void frmCalc::store(const std::string& key, std::string_view text) {
  desktop_.settings().write(kSection, key, text);
}

void frmCalc::load() {
  common::trap([this] { Form_Load(); },
               [this](const common::RunTimeError& error) { engine_.ShowError(error); });
}

void frmCalc::Form_Load() {
  globals_.helpFile = chooseHelpFile(desktop_);
  txtEntry.setText("");
  txtTape.setText("Top");
}

// The first resize restores the settings; each size that it applies raises a resize of its own.
void frmCalc::RestoreSettings() {
  window_->setLeft(storedTwips("frmCalcAtUnloadLeft", 500));
  window_->setTop(storedTwips("frmCalcAtUnloadTop", 500));
  window_->setHeight(storedTwips("frmCalcAtUnloadHeight", 3525));
  window_->setWidth(storedTwips("frmCalcAtUnloadWidth", 6690));
  const double color = storedNumber("glngTextBackColor", kDefaultTextBackColor);
  const bool isColor = color >= 0 && color <= 0xFFFFFF;
  globals_.glngTextBackColor = isColor ? static_cast<std::uint32_t>(color) : kDefaultTextBackColor;
  RestoreToggles();
  const bool adding = storedNumber("frmCalcmintMode", 1) == 0;
  machine_.chooseMode(adding ? engine::Mode::Add : engine::Mode::Calculator);
  txtDec.setText(common::readText(desktop_.settings(), kSection, "frmCalctxtDec", "2"));
  mblnResized = true;
}

void frmCalc::RestoreToggles() {
  const bool stationary = storedNumber("frmCalcchkShiftDec", 0) != 0;
  const bool floating = storedNumber("frmCalcchkFloatingDec", 0) != 0;
  const bool tapeOff = storedNumber("frmCalcchkTapeOff", 0) != 0;
  chkShiftDec.setValue(stationary);
  chkFloatingDec.setValue(floating);
  chkTapeOff.setValue(tapeOff);
  mnuEditStationaryDecimal.setChecked(stationary);
  mnuEditFloatingDecimal.setChecked(floating);
  mnuWinTapeOff.setChecked(tapeOff);
  mnuWinAlwaysOnTop.setChecked(storedTruth("frmCalcmnuWinAlwaysOnTop"));
  mnuWinMicroWindow.setChecked(storedTruth("frmCalcmnuWinMicroWindow"));
  mnuWinPadTape.setChecked(storedTruth("frmCalcmnuWinPadTape"));
}

void frmCalc::Form_Activate() {
  if (!mblnActivated) {
    mnuWinAlwaysOnTop_Click();
    mnuWinPadTape_Click();
    chooseMode(machine_.chosenMode());
    machine_.clearTape();
  }
  mblnActivated = true;
  globals_.gblnCalcLoaded = true;
}

void frmCalc::unload() {
  Form_Unload();
  program_.unloadCalc();
}

void frmCalc::Form_Unload() {
  globals_.gblnCalcLoaded = false;
  if (window_->state() == controls::WindowState::Minimized || !window_->visible()) return;
  const controls::Rect& bounds = window_->bounds();
  store("frmCalcAtUnloadLeft", common::toText(bounds.left));
  store("frmCalcAtUnloadTop", common::toText(bounds.top));
  store("frmCalcAtUnloadHeight", common::toText(bounds.height));
  store("frmCalcAtUnloadWidth", common::toText(bounds.width));
  store("frmCalcchkShiftDec", common::toText(chkShiftDec.value()));
  store("frmCalcchkTapeOff", common::toText(chkTapeOff.value()));
  store("frmCalcchkFloatingDec", common::toText(chkFloatingDec.value()));
  store("frmCalcmnuWinAlwaysOnTop", common::truthText(mnuWinAlwaysOnTop.checked()));
  store("frmCalcmnuWinMicroWindow", common::truthText(mnuWinMicroWindow.checked()));
  store("frmCalcmnuWinPadTape", common::truthText(mnuWinPadTape.checked()));
  store("frmCalcmintMode", common::toText(static_cast<int>(machine_.chosenMode())));
  store("frmCalctxtDec", txtDec.text());
}

}  // namespace shell
