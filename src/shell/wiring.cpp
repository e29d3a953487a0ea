// Which control does what: one line for each.
#include <utility>

#include "common/number_text.h"
#include "engine/tape_line_style.h"
#include "shell/frm_calc.h"

namespace shell {

namespace {

constexpr controls::KeyCode kKeyPoint = 190;

}  // namespace

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
  controls_.chkFloatingDec.onClick = [this] { decimalsBox_.floatingChanged(); };
  controls_.chkShiftDec.onClick = [this] { decimalsBox_.stationaryChanged(); };
  controls_.chkTapeOff.onClick = [this] { tapeOptions_.offChanged(); };
}

// A key of the keypad types into the entry box, like the keyboard.
void frmCalc::typeKey(controls::KeyCode key, controls::KeyAscii character) {
  controls_.txtEntry.setFocus();
  window_->sendKey(key, character);
}

void frmCalc::wireFigures() {
  for (const auto& control : window_->controls()) {
    auto* key = dynamic_cast<controls::ClickControl*>(control.get());
    if (key) key->onKeyPress = [this](controls::KeyAscii& character) { typeIntoEntry(character); };
  }
}

// A digit or point typed while a key or a toggle has the focus goes to the entry box.
void frmCalc::typeIntoEntry(controls::KeyAscii& key) {
  if (key != '.' && !common::isDigit(key)) return;
  controls_.txtEntry.setFocus();
  controls_.txtEntry.typeCharacter(std::exchange(key, 0));
}

void frmCalc::wireEntry() {
  controls::TextBox& txtEntry = controls_.txtEntry;
  txtEntry.onKeyPress = [this](controls::KeyAscii& key) { machine_.keyPress(key); };
  txtEntry.onKeyUp = [this](controls::KeyCode key) { machine_.entry().keyUp(key); };
  txtEntry.onChange = [this](controls::ChangedBy by) { machine_.entry().changed(by); };
  txtEntry.onMenuEdit = [this](controls::MenuEdit edit) { machine_.entryPaste().menuEdit(edit); };
  txtEntry.onPasteCommand = [this](const std::optional<std::string>& text) {
    machine_.entryPaste().paste(text);
  };
  txtEntry.onPaste = [this](std::string& text) { machine_.entryPaste().menuPaste(text); };
  txtEntry.onGotFocus = [this, &txtEntry] { colors_.mark(txtEntry); };
}

void frmCalc::wireOtherBoxes() {
  controls::TextBox& txtTape = controls_.txtTape;
  controls::TextBox& txtDec = controls_.txtDec;
  txtTape.onEdit = [this](const common::TextEdit& edit) {
    controls_.desktop.tapeSafe().record(edit);
  };
  txtTape.styleOfLine = engine::tapeLineStyle;
  txtTape.spokenLine = engine::spokenTapeLine;
  txtTape.onGotFocus = [this, &txtTape] {
    txtTape.moveCaretToEnd();
    colors_.mark(txtTape);
  };
  txtTape.onLostFocus = [&txtTape] { txtTape.setBackColor(controls::Color::window()); };
  txtDec.onGotFocus = [this, &txtDec] {
    colors_.mark(txtDec);
    txtDec.selectAll();
  };
  txtDec.onLostFocus = [this] { decimalsBox_.lostFocus(); };
  txtDec.onKeyPress = [this](controls::KeyAscii& key) { decimalsBox_.keyPress(key); };
  txtDec.onKeyUp = [this](controls::KeyCode key) { decimalsBox_.keyUp(key); };
  txtDec.onPaste = [this](std::string& text) { decimalsBox_.paste(text); };
  window_->control("Label1").onDblClick = [this] { colors_.choose(); };
}

void frmCalc::wireMenu() {
  using common::AnnuityKind;
  const auto item = [this](std::string_view name) -> std::function<void()>& {
    return window_->menuItem(name).onClick;
  };
  item("mnuFileSave") = [this] { tapeOutput_.save(); };
  item("mnuFilePrint") = [this] { tapeOutput_.print(); };
  item("mnuFileExit") = [this] { unload(); };
  item("mnuEditCut") = [this] { editMenu_.cut(); };
  item("mnuEditCopy") = [this] { editMenu_.copy(); };
  item("mnuEditPaste") = [this] { editMenu_.paste(); };
  item("mnuEditFloatingDecimal") = [this] { controls_.chkFloatingDec.toggle(); };
  item("mnuEditStationaryDecimal") = [this] { controls_.chkShiftDec.toggle(); };
  item("mnuEditCopyTape") = [this] { tapeOutput_.copyTape(); };
  item("mnuEditTapeToNotepad") = [this] { tapeOutput_.openInNotepad(); };
  item("mnuWinAlwaysOnTop") = [this] { place_.toggleOnTop(); };
  item("mnuWinMicroWindow") = [this] { place_.switchLayout(); };
  item("mnuWinMode(0)") = [this] { chooseMode(engine::Mode::Add); };
  item("mnuWinMode(1)") = [this] { chooseMode(engine::Mode::Calculator); };
  item("mnuWinFinCalcLoan") = [this] { openFinancialCalc(AnnuityKind::Loan); };
  item("mnuWinFinCalcInv") = [this] { openFinancialCalc(AnnuityKind::Investment); };
  item("mnuFinCalcStandard") = [this] { openFinancialCalc(AnnuityKind::Standard); };
  item("mnuWinPadTape") = [this] { tapeOptions_.togglePadding(); };
  item("mnuWinTapeOff") = [this] { controls_.chkTapeOff.toggle(); };
  item("mnuHelpContents") = [this] { showHelp(); };
  item("mnuHelpAbout") = [this] { showAbout(); };
}

}  // namespace shell
