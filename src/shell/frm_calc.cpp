#include "shell/frm_calc.h"

#include "shell/frm_calc_layout.h"

namespace shell {

namespace {

engine::EngineControls engineControls(controls::Desktop& desktop, controls::Window& window) {
  return {.desktop = desktop,
          .txtEntry = window.textBox("txtEntry"),
          .txtTape = window.textBox("txtTape"),
          .txtDec = window.textBox("txtDec"),
          .chkFloatingDec = window.toggleButton("chkFloatingDec"),
          .chkShiftDec = window.toggleButton("chkShiftDec"),
          .chkTapeOff = window.toggleButton("chkTapeOff"),
          .cmdMemPlus = window.button("cmdMemPlus"),
          .mnuEditFloatingDecimal = window.menuItem("mnuEditFloatingDecimal"),
          .mnuEditStationaryDecimal = window.menuItem("mnuEditStationaryDecimal"),
          .mnuWinModes = window.menuItem("mnuWinModes"),
          .mnuWinPadTape = window.menuItem("mnuWinPadTape"),
          .mnuWinTapeOff = window.menuItem("mnuWinTapeOff")};
}

}  // namespace

frmCalc::frmCalc(controls::Desktop& desktop, Globals& globals, Program& program)
    : desktop_(desktop),
      globals_(globals),
      program_(program),
      window_(desktop.createWindow(frmCalcLayout())),
      engine_(engineControls(desktop, *window_)),
      txtEntry(window_->textBox("txtEntry")),
      txtTape(window_->textBox("txtTape")),
      txtDec(window_->textBox("txtDec")),
      chkFloatingDec(window_->toggleButton("chkFloatingDec")),
      chkShiftDec(window_->toggleButton("chkShiftDec")),
      chkTapeOff(window_->toggleButton("chkTapeOff")),
      mnuEditFloatingDecimal(window_->menuItem("mnuEditFloatingDecimal")),
      mnuEditStationaryDecimal(window_->menuItem("mnuEditStationaryDecimal")),
      mnuWinAlwaysOnTop(window_->menuItem("mnuWinAlwaysOnTop")),
      mnuWinMicroWindow(window_->menuItem("mnuWinMicroWindow")),
      mnuWinPadTape(window_->menuItem("mnuWinPadTape")),
      mnuWinTapeOff(window_->menuItem("mnuWinTapeOff")) {
  wireKeys();
  wireEntry();
  wireOtherBoxes();
  wireFileAndEditMenu();
  wireWinAndHelpMenu();
  window_->onResize = [this] { Form_Resize(); };
  window_->onActivate = [this] { Form_Activate(); };
  window_->onClose = [this] { unload(); };
  window_->onHelp = [this] { mnuHelpContents_Click(); };
}

void frmCalc::wireKeys() {
  const auto button = [this](std::string_view name) -> std::function<void()>& {
    return window_->button(name).onClick;
  };
  button("cmdPlus") = [this] { engine_.cmdPlus_Click(); };
  button("cmdMinus") = [this] { engine_.cmdMinus_Click(); };
  button("cmdTimes") = [this] { engine_.cmdTimes_Click(); };
  button("cmdDivide") = [this] { engine_.cmdDivide_Click(); };
  button("cmdEquals") = [this] { engine_.cmdEquals_Click(); };
  button("cmdPercent") = [this] { engine_.cmdPercent_Click(); };
  button("cmdSquareRoot") = [this] { engine_.cmdSquareRoot_Click(); };
  button("cmdChangeSign") = [this] { engine_.cmdChangeSign_Click(); };
  button("cmdClearCurrent") = [this] { engine_.cmdClearCurrent_Click(); };
  button("cmdClearCalc") = [this] { engine_.cmdClearCalc_Click(); };
  button("cmdClearTape") = [this] { engine_.cmdClearTape_Click(); };
  button("cmdClearAll") = [this] { engine_.cmdClearAll_Click(); };
  button("cmdMemPlus") = [this] { engine_.cmdMemPlus_Click(); };
  button("cmdMemStore") = [this] { engine_.cmdMemStore_Click(); };
  button("cmdMemRecall") = [this] { engine_.cmdMemRecall_Click(); };
  button("cmdMemClear") = [this] { engine_.cmdMemClear_Click(); };
  button("cmdPeriod") = [this] { engine_.cmdPeriod_Click(); };
  button("cmdArrow") = [this] { engine_.cmdArrow_Click(); };
  for (int digit = 0; digit <= 9; ++digit)
    button("cmdNumber(" + std::to_string(digit) + ")") = [this, digit] {
      engine_.cmdNumber_Click(digit);
    };
  chkFloatingDec.onClick = [this] { engine_.chkFloatingDec_Click(); };
  chkShiftDec.onClick = [this] { engine_.chkShiftDec_Click(); };
  chkTapeOff.onClick = [this] { engine_.chkTapeOff_Click(); };
}

void frmCalc::wireEntry() {
  txtEntry.onKeyPress = [this](controls::KeyAscii& key) { engine_.txtEntry_KeyPress(key); };
  txtEntry.onKeyUp = [this](controls::KeyCode key) { engine_.txtEntry_KeyUp(key); };
  txtEntry.onChange = [this](controls::ChangedBy by) { engine_.txtEntry_Change(by); };
  txtEntry.onMouseUp = [this](controls::MouseEdit edit) { engine_.txtEntry_MouseUp(edit); };
  txtEntry.onPasteCommand = [this](const std::optional<std::string>& text) {
    engine_.PasteEntry(text);
  };
  // What the mouse pastes is judged with the rest of the entry, when the mouse is up.
  txtEntry.onPaste = [](std::string& text) { text = controls::withoutLineEnd(std::move(text)); };
  txtEntry.onGotFocus = [this] { txtEntry_GotFocus(); };
}

void frmCalc::wireOtherBoxes() {
  txtTape.onGotFocus = [this] { txtTape_GotFocus(); };
  txtTape.onLostFocus = [this] { txtTape_LostFocus(); };
  txtDec.onGotFocus = [this] { txtDec_GotFocus(); };
  txtDec.onLostFocus = [this] { txtDec_LostFocus(); };
  txtDec.onKeyPress = [this](controls::KeyAscii& key) { txtDec_KeyPress(key); };
  txtDec.onKeyUp = [this](controls::KeyCode key) { txtDec_KeyUp(key); };
  txtDec.onPaste = [this](std::string& text) { txtDec_Paste(text); };
  window_->control("Label1").onDblClick = [this] { Label1_DblClick(); };
}

void frmCalc::wireFileAndEditMenu() {
  const auto item = [this](std::string_view name) -> std::function<void()>& {
    return window_->menuItem(name).onClick;
  };
  item("mnuFileSave") = [this] { mnuFileSave_Click(); };
  item("mnuFilePrint") = [this] { mnuFilePrint_Click(); };
  item("mnuFileExit") = [this] { unload(); };
  item("mnuEditCut") = [this] { mnuEditCut_Click(); };
  item("mnuEditCopy") = [this] { mnuEditCopy_Click(); };
  item("mnuEditPaste") = [this] { mnuEditPaste_Click(); };
  item("mnuEditFloatingDecimal") = [this] { mnuEditFloatingDecimal_Click(); };
  item("mnuEditStationaryDecimal") = [this] { mnuEditStationaryDecimal_Click(); };
  item("mnuEditCopyTape") = [this] { mnuEditCopyTape_Click(); };
  item("mnuEditTapeToNotepad") = [this] { mnuEditTapeToNotepad_Click(); };
}

void frmCalc::wireWinAndHelpMenu() {
  using common::AnnuityKind;
  const auto item = [this](std::string_view name) -> std::function<void()>& {
    return window_->menuItem(name).onClick;
  };
  item("mnuWinAlwaysOnTop") = [this] { mnuWinAlwaysOnTop_Click(); };
  item("mnuWinMicroWindow") = [this] { mnuWinMicroWindow_Click(); };
  item("mnuWinMode(0)") = [this] { mnuWinMode_Click(engine::kAddMode); };
  item("mnuWinMode(1)") = [this] { mnuWinMode_Click(engine::kCalculatorMode); };
  item("mnuWinFinCalcLoan") = [this] { OpenFinancialCalc(AnnuityKind::Loan); };
  item("mnuWinFinCalcInv") = [this] { OpenFinancialCalc(AnnuityKind::Investment); };
  item("mnuFinCalcStandard") = [this] { OpenFinancialCalc(AnnuityKind::Standard); };
  item("mnuWinPadTape") = [this] { mnuWinPadTape_Click(); };
  item("mnuWinTapeOff") = [this] { mnuWinTapeOff_Click(); };
  item("mnuHelpContents") = [this] { mnuHelpContents_Click(); };
  item("mnuHelpAbout") = [this] { mnuHelpAbout_Click(); };
}

}  // namespace shell
