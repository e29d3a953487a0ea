#pragma once

#include <functional>
#include <memory>
#include <string>

#include "common/annuity_kind.h"
#include "controls/desktop.h"
#include "engine/adding_machine.h"
#include "shell/globals.h"

namespace shell {

/// What the main window asks of the program around it.
class Program {
 public:
  virtual ~Program() = default;
  /// Opens the financial calculator afresh, for one kind of problem.
  virtual void openFinancialCalc(common::AnnuityKind kind) = 0;
  /// Shows the About box in front of everything; `closed` runs when it has been closed.
  virtual void showAbout(std::function<void()> closed) = 0;
  /// The main window goes, once the running handler has ended.
  virtual void unloadCalc() = 0;
};

/// The main window: the adding machine with its tape, and the shell around it.
class frmCalc {
 public:
  frmCalc(controls::Desktop& desktop, Globals& globals, Program& program);
  frmCalc(const frmCalc&) = delete;
  frmCalc& operator=(const frmCalc&) = delete;

  controls::Window& window() { return *window_; }
  void load();
  void show() { window_->show(); }
  /// Saves the settings, unless the window is minimized, and goes.
  void unload();

  /// Appends lines to the tape for another window; the entry box has the focus afterwards when the
  /// user comes back here.
  void printLines(const std::string& lines);

 private:
  void wireKeys();
  void typeKey(controls::KeyCode key, controls::KeyAscii character);
  void wireEntry();
  void wireOtherBoxes();
  void wireFileAndEditMenu();
  void wireWinAndHelpMenu();

  void Form_Load();
  void Form_Resize();
  void Form_Activate();
  void RestoreSettings();
  void RestoreToggles();
  void Form_Unload();

  void mnuFileSave_Click();
  void mnuFilePrint_Click();
  void OfferTapeToNotepad(const std::string& title);
  void mnuEditCut_Click();
  void mnuEditCopy_Click();
  void mnuEditPaste_Click();
  void mnuEditCopyTape_Click();
  void mnuEditTapeToNotepad_Click();
  bool CopyTape();
  controls::TextBox* focusedBox() const;

  void mnuEditFloatingDecimal_Click();
  void mnuEditStationaryDecimal_Click();
  void mnuWinAlwaysOnTop_Click();
  void mnuWinMicroWindow_Click();
  void ExchangeGeometry(const std::string& from, const std::string& to,
                        const controls::Rect& fallback);
  void chooseMode(engine::Mode mode);
  void chkFloatingDec_Click();
  void chkShiftDec_Click();
  void chkTapeOff_Click();
  void mnuWinPadTape_Click();
  void mnuWinTapeOff_Click();
  void OpenFinancialCalc(common::AnnuityKind kind);
  void mnuHelpContents_Click();
  void mnuHelpAbout_Click();

  void txtEntry_GotFocus();
  void txtTape_GotFocus();
  void txtTape_LostFocus();
  void txtDec_GotFocus();
  void txtDec_LostFocus();
  void txtDec_KeyPress(controls::KeyAscii& key);
  void txtDec_KeyUp(controls::KeyCode key);
  void txtDec_Paste(std::string& text);
  bool DecAccepts(std::string_view text) const;
  void Label1_DblClick();

  controls::Color textBackColor() const { return controls::Color::rgb(globals_.glngTextBackColor); }
  double storedNumber(const std::string& key, double fallback) const;
  controls::Twips storedTwips(const std::string& key, controls::Twips fallback) const;
  bool storedTruth(const std::string& key) const;
  void store(const std::string& key, std::string_view text);

  controls::Desktop& desktop_;
  Globals& globals_;
  Program& program_;
  std::unique_ptr<controls::Window> window_;
  engine::AddingMachine machine_;

  controls::TextBox& txtEntry;
  controls::TextBox& txtTape;
  controls::TextBox& txtDec;
  controls::ToggleButton& chkFloatingDec;
  controls::ToggleButton& chkShiftDec;
  controls::ToggleButton& chkTapeOff;
  controls::MenuItem& mnuEditFloatingDecimal;
  controls::MenuItem& mnuEditStationaryDecimal;
  controls::MenuItem& mnuWinAlwaysOnTop;
  controls::MenuItem& mnuWinMicroWindow;
  controls::MenuItem& mnuWinPadTape;
  controls::MenuItem& mnuWinTapeOff;

  bool mblnResized = false;
  bool mblnActivated = false;
  std::string mstrPadTapeText;
};

}  // namespace shell
