#include "shell/frm_calc.h"

namespace shell {

controls::TextBox* frmCalc::focusedBox() const {
  return dynamic_cast<controls::TextBox*>(window_->focusedControl());
}

void frmCalc::mnuEditCut_Click() {
  controls::TextBox* box = focusedBox();
  if (box && box->cut() && box == &txtEntry) machine_.entry().tidy();
}

void frmCalc::mnuEditCopy_Click() {
  if (controls::TextBox* box = focusedBox()) box->copy();
}

void frmCalc::mnuEditPaste_Click() {
  if (controls::TextBox* box = focusedBox()) box->paste();
}

// Shows the selection once, and returns the user to typing.
bool frmCalc::CopyTape() {
  txtTape.selectAll();
  const bool copied = desktop_.setClipboardText(txtTape.selectedText());
  txtTape.setFocus();
  txtEntry.setFocus();
  return copied;
}

void frmCalc::mnuEditCopyTape_Click() {
  if (!mnuWinPadTape.checked())
    desktop_.showMessage(
        {.text = "Note: If pasting to a text file this option will work better if the Win | Pad "
                 "Tape choice is selected from the main menu.  This choice must be selected before "
                 "keying in the numbers."});
  if (!CopyTape()) desktop_.beep();
}

void frmCalc::mnuEditTapeToNotepad_Click() {
  if (!mnuWinPadTape.checked())
    desktop_.showMessage(
        {.text = "Note: This option will work better if the Win | Pad Tape choice is selected from "
                 "the main menu.  This choice must be selected before keying in the numbers."});
  if (!CopyTape() || !desktop_.startProgramAndPaste("NotePad.exe"))
    desktop_.showMessage({.text = "Error finding or displaying NotePad.exe"});
}

void frmCalc::mnuFileSave_Click() {
  OfferTapeToNotepad("Save Tape Display");
}

void frmCalc::mnuFilePrint_Click() {
  OfferTapeToNotepad("Print Tape Display");
}

void frmCalc::OfferTapeToNotepad(const std::string& title) {
  const int answer = desktop_.showMessage(
      {.text = "This option copies the Tape Display to the clipboard and executes Notepad.  If you "
               "would like to use another program other than Notepad choose Edit from the main "
               "menu and then Copy Entire Tape.  Do you wish to continue?",
       .buttons = controls::Buttons::YesNo,
       .title = title});
  if (answer == controls::kAnswerYes) mnuEditTapeToNotepad_Click();
}

}  // namespace shell
