#include "shell/tape_output.h"

namespace shell {

// Moving the focus to the tape and back shows its selection.
bool TapeOutput::copyWholeTape() {
  controls_.txtTape.selectAll();
  const bool copied = controls_.desktop.setClipboardText(controls_.txtTape.selectedText());
  controls_.txtTape.setFocus();
  controls_.txtEntry.setFocus();
  return copied;
}

void TapeOutput::copyTape() {
  if (!controls_.mnuWinPadTape.checked())
    controls_.desktop.showMessage(
        {.text = "Note: If pasting to a text file this option will work better if the Win | Pad "
                 "Tape choice is selected from the main menu.  This choice must be selected before "
                 "keying in the numbers."});
  if (!copyWholeTape()) controls_.desktop.beep();
}

void TapeOutput::openInNotepad() {
  if (handingOver_) {
    controls_.desktop.beep();
    return;
  }
  handingOver_ = true;
  if (!controls_.mnuWinPadTape.checked())
    controls_.desktop.showMessage(
        {.text = "Note: This option will work better if the Win | Pad Tape choice is selected from "
                 "the main menu.  This choice must be selected before keying in the numbers."});
  if (!copyWholeTape() || !controls_.desktop.startProgramAndPaste("NotePad.exe"))
    controls_.desktop.showMessage({.text = "Error finding or displaying NotePad.exe"});
  handingOver_ = false;
}

void TapeOutput::save() {
  offerNotepad("Save Tape Display");
}

void TapeOutput::print() {
  offerNotepad("Print Tape Display");
}

void TapeOutput::offerNotepad(const std::string& title) {
  const int answer = controls_.desktop.showMessage(
      {.text = "This option copies the Tape Display to the clipboard and executes Notepad.  If you "
               "would like to use another program other than Notepad choose Edit from the main "
               "menu and then Copy Entire Tape.  Do you wish to continue?",
       .buttons = controls::Buttons::YesNo,
       .title = title});
  if (answer == controls::kAnswerYes) openInNotepad();
}

}  // namespace shell
