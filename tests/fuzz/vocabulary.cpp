#include "fuzz/vocabulary.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "annuity/frm_annuity_layout.h"
#include "driver/json.h"
#include "fuzz/dictionary.h"
#include "shell/frm_calc_layout.h"

namespace fuzz {

namespace {

constexpr auto kKeys = std::to_array<std::string_view>(
    {"Enter", "Backspace", "Delete", "Tab", "Shift+Tab", "Escape", "Space", "Left", "Right", "Up",
     "Down", "Home", "End", "Shift+Left", "Shift+Right", "Shift+Home", "Shift+End", "Shift+Insert",
     "F1"});

constexpr auto kWindows = std::to_array<std::string_view>({"frmCalc", "frmAnnuity", "frmAbout"});

constexpr auto kAnnuityKeys = std::to_array<std::string_view>(
    {"txtNper", "txtRate", "txtPmt", "txtPV", "txtFV", "OptNper0", "OptNper1", "OptDue0", "OptDue1",
     "MsgStandard", "MsgLoan", "MsgInv"});

// The places of the main window: where it was closed, and those of its two sizes.
constexpr auto kPlaces =
    std::to_array<std::string_view>({"frmCalcAtUnload", "frmCalc", "frmCalcMicro"});
constexpr auto kEdges = std::to_array<std::string_view>({"Left", "Top", "Height", "Width"});

constexpr auto kMainKeys = std::to_array<std::string_view>(
    {"frmCalcchkShiftDec", "frmCalcchkTapeOff", "frmCalcchkFloatingDec", "frmCalcmnuWinAlwaysOnTop",
     "frmCalcmnuWinMicroWindow", "frmCalcmnuWinPadTape", "frmCalcmintMode", "frmCalctxtDec",
     "glngTextBackColor"});

std::string quoted(const std::string& text) {
  return driver::Json(text).dump(-1, ' ', true, driver::Json::error_handler_t::replace);
}

std::string number(std::mt19937& random, int low, int high) {
  return std::to_string(std::uniform_int_distribution(low, high)(random));
}

/// What stands for a placeholder.
std::string valueOf(std::string_view placeholder, std::mt19937& random) {
  if (placeholder == "%amount") return quoted(randomAmount(random));
  if (placeholder == "%keyed") return quoted(randomAmount(random) + randomOperator(random));
  if (placeholder == "%text") return quoted(randomText(random));
  if (placeholder == "%pasted") return quoted(randomPaste(random));
  if (placeholder == "%double") return randomDouble(random);
  if (placeholder == "%place") return number(random, 0, 24);
  // On a screen of 1280 pixels the mouse still gets to the keys.
  if (placeholder == "%corner") return number(random, 0, 8000);
  if (placeholder == "%size") return number(random, -100, 20000);
  return number(random, 0, 0xFFFFFF);
}

}  // namespace

Vocabulary::Vocabulary(For use) {
  addKeys();
  addWindows(use);
  addTexts();
  addSettings();
  if (use == For::InMemory) addWorld();
}

void Vocabulary::addKeys() {
  for (const std::string_view key : kKeys) add("press " + std::string(key));
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    add(std::string("press Ctrl+") + letter);
    add(std::string("press Alt+") + letter);
  }
  for (char character = ' '; character < 127; ++character)
    add("type " + quoted(std::string(1, character)));
}

void Vocabulary::addWindows(For use) {
  const auto addControls = [this, use](const controls::WindowLayout& layout) {
    const std::string window = std::string(layout.name) + ".";
    for (const controls::ControlLayout& control : layout.controls) {
      // The mouse goes through a frame to its window.
      if (control.kind == controls::ControlKind::Frame) continue;
      const std::string name = window + std::string(control.name);
      add("focus " + name);
      const bool isText = control.kind == controls::ControlKind::TextBox;
      if (isText) add("select " + name + " %place %place");
      // On the screen a click in a text puts the caret at its place, and the second selects a word.
      if (isText && use == For::BothKinds) continue;
      add("click " + name);
      add("dblclick " + name);
    }
    for (const controls::MenuItemLayout& item : layout.menu) add("menu " + std::string(item.name));
  };
  addControls(shell::frmCalcLayout());
  addControls(annuity::frmAnnuityLayout());
  add("click frmAbout.cmdOK");
  for (const std::string_view window : kWindows) {
    const std::string name(window);
    for (const char* verb :
         {"close ", "askclose ", "during askclose ", "window ", "maximize ", "restore "})
      add(verb + name);
    // Nobody can point into a window that is minimized.
    if (use == For::InMemory) add("minimize " + name);
    add("resize " + name + " %size %size");
    add("move " + name + " %corner %corner");
  }
  add("start");
  add("endsession");
  add("during endsession");
  add("crash");
}

void Vocabulary::addTexts() {
  for (const char* pattern : {"type %amount",
                              "type %keyed",
                              "type %keyed",
                              "roll %amount",
                              "roll %keyed",
                              "type %text",
                              "mousepaste %amount",
                              "mousepaste %pasted",
                              "mousecut",
                              "mousedelete",
                              "mouseundo",
                              "clipboard set %amount",
                              "clipboard set %pasted",
                              "clipboard clear",
                              "clipboard get",
                              "answer 6",
                              "answer 7",
                              "color %number",
                              "color cancel",
                              "events",
                              "snapshot",
                              "get txtTape Text",
                              "get frmAnnuity Loaded"})
    add(pattern);
  add("call Value %text");
  add("call Text %double");
  add("call Format %double \"#,##0.00\"");
}

void Vocabulary::addSettings() {
  const auto addKey = [this](const std::string& key) {
    add("store set " + key + " %amount");
    add("store set " + key + " %text");
    add("store delete " + key);
  };
  for (const std::string_view place : kPlaces)
    for (const std::string_view edge : kEdges)
      addKey("Settings " + std::string(place) + std::string(edge));
  for (const std::string_view key : kMainKeys) addKey("Settings " + std::string(key));
  for (const std::string_view key : kAnnuityKeys) addKey("Annuity " + std::string(key));
  add("store get Settings frmCalctxtDec");
  add("store clear");
}

// The drivers of the two kinds stand on C libraries whose powers differ in their last digits, so
// that the functions of annuities are not among what is compared.
void Vocabulary::addWorld() {
  for (const char* function : {"Pmt", "PV", "FV", "NPer"})
    add(std::string("call ") + function + " %double %double %double %double %place");
  add("call Rate %double %double %double %double %place %double");
  for (const char* pattern :
       {"click frmAbout.cmdSysInfo", "store dump", "programs", "programs \"NotePad.exe\"", "files",
        "files \"C:\\\\Tallyrex\\\\help\\\\Tallyrex.hlp\"",
        R"(registry set "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO" "PATH" %text)", "reset"})
    add(pattern);
}

std::string Vocabulary::command(std::mt19937& random) const {
  const std::string& pattern =
      patterns_[std::uniform_int_distribution<std::size_t>(0, patterns_.size() - 1)(random)];
  std::string command;
  for (std::size_t from = 0; from < pattern.size();) {
    const std::size_t end = std::min(pattern.find(' ', from), pattern.size());
    const std::string word = pattern.substr(from, end - from);
    if (!command.empty()) command += ' ';
    command += word.starts_with('%') ? valueOf(word, random) : word;
    from = end + 1;
  }
  return command;
}

bool Vocabulary::covers(std::string_view name) const {
  return std::ranges::any_of(patterns_, [name](const std::string& pattern) {
    return pattern.substr(0, pattern.find(' ')) == name;
  });
}

}  // namespace fuzz
