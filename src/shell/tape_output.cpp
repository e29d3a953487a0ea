#include "shell/tape_output.h"

namespace shell {

TapeOutput::TapeOutput(controls::Window& window, controls::Desktop& desktop)
    : desktop_(desktop),
      txtTape_(window.textBox("txtTape")),
      txtEntry_(window.textBox("txtEntry")),
      mnuWinPadTape_(window.menuItem("mnuWinPadTape")) {}

// Shows the selection once, and returns the user to typing.
bool TapeOutput::copyWholeTape() {
  txtTape_.selectAll();
  const bool copied = desktop_.setClipboardText(txtTape_.selectedText());
  txtTape_.setFocus();
  txtEntry_.setFocus();
  return copied;
}

void TapeOutput::copyTape() {
  if (!mnuWinPadTape_.checked())
    desktop_.showMessage(
        {.text = "Note: If pasting to a text file this option will work better if the Win | Pad "
                 "Tape choice is selected from the main menu.  This choice must be selected before "
                 "keying in the numbers."});
  if (!copyWholeTape()) desktop_.beep();
}

void TapeOutput::openInNotepad() {
  if (handingOver_) {
    desktop_.beep();
    return;
  }
  handingOver_ = true;
  if (!mnuWinPadTape_.checked())
    desktop_.showMessage(
        {.text = "Note: This option will work better if the Win | Pad Tape choice is selected from "
                 "the main menu.  This choice must be selected before keying in the numbers."});
  if (!copyWholeTape() || !desktop_.startProgramAndPaste("NotePad.exe"))
    desktop_.showMessage({.text = "Error finding or displaying NotePad.exe"});
  handingOver_ = false;
}

void TapeOutput::save() {
  offerNotepad("Save Tape Display");
}

void TapeOutput::print() {
  offerNotepad("Print Tape Display");
}

void TapeOutput::offerNotepad(const std::string& title) {
  const int answer = desktop_.showMessage(
      {.text = "This option copies the Tape Display to the clipboard and executes Notepad.  If you "
               "would like to use another program other than Notepad choose Edit from the main "
               "menu and then Copy Entire Tape.  Do you wish to continue?",
       .buttons = controls::Buttons::YesNo,
       .title = title});
  if (answer == controls::kAnswerYes) openInNotepad();
}

}  // namespace shell
