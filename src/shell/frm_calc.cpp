#include "shell/frm_calc.h"

#include "shell/frm_calc_layout.h"

namespace shell {

namespace {

constexpr controls::KeyCode kKeyPoint = 190;

engine::MachineControls machineControls(controls::Desktop& desktop, controls::Window& window) {
  return {.desktop = desktop,
          .txtEntry = window.textBox("txtEntry"),
          .txtTape = window.textBox("txtTape"),
          .txtDec = window.textBox("txtDec"),
          .chkFloatingDec = window.toggleButton("chkFloatingDec"),
          .chkShiftDec = window.toggleButton("chkShiftDec"),
          .chkTapeOff = window.toggleButton("chkTapeOff"),
          .cmdMemPlus = window.button("cmdMemPlus"),
          .mnuWinModes = window.menuItem("mnuWinModes"),
          .mnuWinPadTape = window.menuItem("mnuWinPadTape")};
}

}  // namespace

frmCalc::frmCalc(controls::Desktop& desktop, Globals& globals, Program& program)
    : desktop_(desktop),
      globals_(globals),
      program_(program),
      window_(desktop.createWindow(frmCalcLayout())),
      machine_(machineControls(desktop, *window_)),
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
  button("cmdPlus") = [this] { machine_.plus(); };
  button("cmdMinus") = [this] { machine_.minus(); };
  button("cmdTimes") = [this] { machine_.times(); };
  button("cmdDivide") = [this] { machine_.divide(); };
  button("cmdEquals") = [this] { machine_.equals(); };
  button("cmdPercent") = [this] { machine_.percent(); };
  button("cmdSquareRoot") = [this] { machine_.squareRoot(); };
  button("cmdChangeSign") = [this] { machine_.changeSign(); };
  button("cmdClearCurrent") = [this] { machine_.clearEntry(); };
  button("cmdClearCalc") = [this] { machine_.clearTotal(); };
  button("cmdClearTape") = [this] { machine_.clearTape(); };
  button("cmdClearAll") = [this] { machine_.clearAll(); };
  button("cmdMemPlus") = [this] { machine_.memory().add(); };
  button("cmdMemStore") = [this] { machine_.memory().store(); };
  button("cmdMemRecall") = [this] { machine_.memory().recall(); };
  button("cmdMemClear") = [this] { machine_.memory().clear(); };
  button("cmdPeriod") = [this] { typeKey(kKeyPoint, '.'); };
  button("cmdArrow") = [this] { typeKey(controls::kKeyBackspace, controls::kKeyBackspace); };
  for (int digit = 0; digit <= 9; ++digit)
    button("cmdNumber(" + std::to_string(digit) + ")") = [this, digit] {
      typeKey('0' + digit, '0' + digit);
    };
  chkFloatingDec.onClick = [this] { chkFloatingDec_Click(); };
  chkShiftDec.onClick = [this] { chkShiftDec_Click(); };
  chkTapeOff.onClick = [this] { chkTapeOff_Click(); };
}

// A key of the keypad types into the entry box, as the keyboard does.
void frmCalc::typeKey(controls::KeyCode key, controls::KeyAscii character) {
  txtEntry.setFocus();
  window_->sendKey(key, character);
}

void frmCalc::wireEntry() {
  txtEntry.onKeyPress = [this](controls::KeyAscii& key) { machine_.keyPress(key); };
  txtEntry.onKeyUp = [this](controls::KeyCode key) { machine_.entry().keyUp(key); };
  txtEntry.onChange = [this](controls::ChangedBy by) { machine_.entry().changed(by); };
  txtEntry.onMouseUp = [this](controls::MouseEdit edit) { machine_.entryPaste().mouseUp(edit); };
  txtEntry.onPasteCommand = [this](const std::optional<std::string>& text) {
    machine_.entryPaste().paste(text);
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
  item("mnuWinMode(0)") = [this] { chooseMode(engine::Mode::Add); };
  item("mnuWinMode(1)") = [this] { chooseMode(engine::Mode::Calculator); };
  item("mnuWinFinCalcLoan") = [this] { OpenFinancialCalc(AnnuityKind::Loan); };
  item("mnuWinFinCalcInv") = [this] { OpenFinancialCalc(AnnuityKind::Investment); };
  item("mnuFinCalcStandard") = [this] { OpenFinancialCalc(AnnuityKind::Standard); };
  item("mnuWinPadTape") = [this] { mnuWinPadTape_Click(); };
  item("mnuWinTapeOff") = [this] { mnuWinTapeOff_Click(); };
  item("mnuHelpContents") = [this] { mnuHelpContents_Click(); };
  item("mnuHelpAbout") = [this] { mnuHelpAbout_Click(); };
}

}  // namespace shell
