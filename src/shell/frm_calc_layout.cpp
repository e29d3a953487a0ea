#include "shell/frm_calc_layout.h"

#include <array>

#include "engine/tape_line.h"

namespace shell {

using controls::Alignment;
using controls::ControlKind;
using controls::ControlLayout;
using controls::FontLayout;
using controls::KeyKind;
using controls::MenuItemLayout;
using controls::Rect;
using controls::Twips;

namespace {

// Five rows of keys. The clear and memory keys form columns at the left; the digits are arranged as
// on a keypad, with the toggles above them and the operators at their right. Between two groups is
// twice the gap that is between two keys. Edges are whole pixels at 100 percent.
constexpr Twips kKeyHeight = 450;
constexpr Twips kFirstRow = 435;
constexpr Twips kDigitRow = 945;
constexpr Twips kRowPitch = 480;
constexpr Twips kDigitColumn = 1290;
constexpr Twips kDigitWidth = 495;
constexpr Twips kDigitPitch = 525;
constexpr Twips kOperatorColumn = 2895;
constexpr Twips kOperatorWidth = 510;
constexpr Twips kOperatorPitch = 540;

consteval Twips row(int index) {
  return index == 0 ? kFirstRow : kDigitRow + (index - 1) * kRowPitch;
}

consteval Rect clearKey(int r) {
  return {0, row(r), 690, kKeyHeight};
}

consteval Rect memoryKey(int r, int rows = 1) {
  return {750, row(r), 480, kKeyHeight + (rows - 1) * kRowPitch};
}

consteval Rect digitKey(int column, int r, int columns = 1) {
  return {kDigitColumn + column * kDigitPitch, row(r), kDigitWidth + (columns - 1) * kDigitPitch,
          kKeyHeight};
}

consteval Rect operatorKey(int column, int r, int rows = 1) {
  return {kOperatorColumn + column * kOperatorPitch, row(r), kOperatorWidth,
          kKeyHeight + (rows - 1) * kRowPitch};
}

constexpr FontLayout kKeyFont = {"MS Sans Serif", 135, false};
constexpr FontLayout kStrongFont = {"MS Sans Serif", 150, true};
// High and narrow: the entry box is as wide as the micro window, and shows 19 characters at every
// resolution, even where the width of a character is rounded up.
constexpr FontLayout kEntryFont = {"Courier New", 120, true, 100};
// The smallest size: the 26 characters of a padded line fit into the window as it first opens.
constexpr FontLayout kTapeFont = {"Terminal", 72, false};

constexpr ControlKind kButton = ControlKind::Button;
constexpr ControlKind kToggle = ControlKind::ToggleButton;

consteval ControlLayout digit(std::string_view name, std::string_view face, const Rect& place) {
  return {.kind = kButton, .name = name, .place = place, .font = kKeyFont, .face = face};
}

// In tab order: the entry box, the keys row by row, the toggles, the tape, the decimals box.
constexpr auto kControls = std::to_array<ControlLayout>({
    {.kind = ControlKind::TextBox,
     .name = "txtEntry",
     .place = {0, 0, 2175, 375},
     .font = kEntryFont,
     .accessibleName = "Entry",
     .alignment = Alignment::Right},

    {.kind = kButton,
     .name = "cmdClearCurrent",
     .caption = "CE&ntry",
     .toolTip = "Clears only the entry.",
     .place = clearKey(0),
     .accessibleName = "Clear e&ntry",
     .keyKind = KeyKind::Clear},
    {.kind = kButton,
     .name = "cmdMemClear",
     .toolTip = "Clear memory total only.",
     .place = memoryKey(0),
     .face = "MC",
     .accessibleName = "Memory clear",
     .keyKind = KeyKind::Memory},
    {.kind = kButton,
     .name = "cmdDivide",
     .place = operatorKey(0, 0),
     .font = kKeyFont,
     .face = "\u00F7",
     .accessibleName = "Divide",
     .keyKind = KeyKind::Operator},
    {.kind = kButton,
     .name = "cmdArrow",
     .place = operatorKey(1, 0),
     .font = kKeyFont,
     .face = "\u2190",
     .accessibleName = "Backspace",
     .keyKind = KeyKind::Operator},

    {.kind = kButton,
     .name = "cmdClearCalc",
     .caption = "C&Total",
     .toolTip = "Clears only the total and sets it to zero.",
     .place = clearKey(1),
     .accessibleName = "Clear &total",
     .keyKind = KeyKind::Clear},
    {.kind = kButton,
     .name = "cmdMemRecall",
     .toolTip = "Recall memory total.",
     .place = memoryKey(1),
     .face = "MR",
     .accessibleName = "Memory recall",
     .keyKind = KeyKind::Memory},
    digit("cmdNumber(7)", "7", digitKey(0, 1)),
    digit("cmdNumber(8)", "8", digitKey(1, 1)),
    digit("cmdNumber(9)", "9", digitKey(2, 1)),
    {.kind = kButton,
     .name = "cmdTimes",
     .place = operatorKey(0, 1),
     .font = kKeyFont,
     .face = "\u00D7",
     .accessibleName = "Multiply",
     .keyKind = KeyKind::Operator},
    {.kind = kButton,
     .name = "cmdPercent",
     .place = operatorKey(1, 1),
     .font = kKeyFont,
     .face = "%",
     .accessibleName = "Percent",
     .keyKind = KeyKind::Operator},

    {.kind = kButton,
     .name = "cmdClearTape",
     .caption = "CTa&pe",
     .toolTip = "Clears only the tape.",
     .place = clearKey(2),
     .accessibleName = "Clear ta&pe",
     .keyKind = KeyKind::Clear},
    {.kind = kButton,
     .name = "cmdMemStore",
     .toolTip = "Replace memory total with entry.",
     .place = memoryKey(2),
     .face = "MS",
     .accessibleName = "Memory store",
     .keyKind = KeyKind::Memory},
    digit("cmdNumber(4)", "4", digitKey(0, 2)),
    digit("cmdNumber(5)", "5", digitKey(1, 2)),
    digit("cmdNumber(6)", "6", digitKey(2, 2)),
    {.kind = kButton,
     .name = "cmdMinus",
     .place = operatorKey(0, 2),
     .font = kKeyFont,
     .face = "\u2212",
     .accessibleName = "Minus",
     .keyKind = KeyKind::Operator},
    {.kind = kButton,
     .name = "cmdChangeSign",
     .toolTip = "Change Sign",
     .place = operatorKey(1, 2),
     .font = kKeyFont,
     .face = "\u00B1",
     .accessibleName = "Change sign",
     .keyKind = KeyKind::Operator},

    {.kind = kButton,
     .name = "cmdClearAll",
     .caption = "C&All",
     .toolTip = "Clears the entry box, the tape and resets the total to zero but does not clear "
                "the memory.",
     .place = clearKey(3),
     .accessibleName = "Clear &all",
     .keyKind = KeyKind::Clear},
    {.kind = kButton,
     .name = "cmdMemPlus",
     .caption = "&M +",
     .toolTip = "Add entry to memory total.",
     .place = memoryKey(3, 2),
     .accessibleName = "&Memory plus",
     .litName = "&Memory plus, memory in use",
     .keyKind = KeyKind::Memory},
    digit("cmdNumber(1)", "1", digitKey(0, 3)),
    digit("cmdNumber(2)", "2", digitKey(1, 3)),
    digit("cmdNumber(3)", "3", digitKey(2, 3)),
    {.kind = kButton,
     .name = "cmdPlus",
     .place = operatorKey(0, 3, 2),
     .font = kStrongFont,
     .face = "+",
     .accessibleName = "Plus",
     .keyKind = KeyKind::Strong},
    {.kind = kButton,
     .name = "cmdEquals",
     .place = operatorKey(1, 3, 2),
     .font = kStrongFont,
     .face = "=",
     .accessibleName = "Equals",
     .keyKind = KeyKind::Strong},

    {.kind = kButton,
     .name = "cmdSquareRoot",
     .caption = "sqrt",
     .toolTip = "Square Root",
     .place = clearKey(4),
     .accessibleName = "Square root",
     .keyKind = KeyKind::Operator},
    digit("cmdNumber(0)", "0", digitKey(0, 4, 2)),
    {.kind = kButton,
     .name = "cmdPeriod",
     .place = digitKey(2, 4),
     .font = kKeyFont,
     .face = ".",
     .accessibleName = "Decimal point"},

    {.kind = kToggle,
     .name = "chkFloatingDec",
     .toolTip = "Floating decimal is on when pressed down.",
     .place = digitKey(0, 0),
     .face = "Float\ndec.",
     .accessibleName = "Floating decimal",
     .keyKind = KeyKind::Toggle},
    {.kind = kToggle,
     .name = "chkShiftDec",
     .toolTip = "The decimal is stationary until keyed when pressed down.",
     .place = digitKey(1, 0),
     .face = "Stat.\ndec.",
     .accessibleName = "Stationary decimal",
     .keyKind = KeyKind::Toggle},
    {.kind = kToggle,
     .name = "chkTapeOff",
     .toolTip = "Tape is off when pressed down.",
     .place = digitKey(2, 0),
     .face = "Tape\noff",
     .accessibleName = "Tape off",
     .keyKind = KeyKind::Toggle},

    {.kind = ControlKind::TextBox,
     .name = "txtTape",
     .place = {4000, 40, 2570, 2795},
     .font = kTapeFont,
     .accessibleName = "Tape",
     .alignment = Alignment::Right,
     .multiLine = true,
     .columns = engine::kTapeWidth},
    {.kind = ControlKind::Label,
     .name = "Label1",
     .caption = "&Decimals:",
     .place = {2400, 75, 1005, 240},
     .alignment = Alignment::Right},
    {.kind = ControlKind::TextBox,
     .name = "txtDec",
     .toolTip = "Number of decimal places allowed.",
     .place = {3435, 0, 510, 375},
     .font = kEntryFont,
     .accessibleName = "Decimal places"},
});

constexpr auto kMenu = std::to_array<MenuItemLayout>({
    {0, "mnuFile", "&File"},
    {1, "mnuFileSave", "&Save"},
    {1, "mnuFilePrint", "&Print"},
    {1, "mnuFileExit", "E&xit"},
    {0, "mnuEdit", "&Edit"},
    {1, "mnuEditCut", "Cu&t", "Ctrl+X"},
    {1, "mnuEditCopy", "&Copy", "Ctrl+C"},
    {1, "mnuEditPaste", "&Paste", "Ctrl+V"},
    {1, "mnuEsep1", "-"},
    {1, "mnuEditFloatingDecimal", "&Floating Decimal", "Ctrl+F"},
    {1, "mnuEditStationaryDecimal", "&Stationary Decimal", "Ctrl+D"},
    {1, "mnuEsep2", "-"},
    {1, "mnuEditCopyTape", "Copy &Entire Tape"},
    {1, "mnuEditTapeToNotepad", "Tape to &Notepad", "Ctrl+N"},
    {0, "mnuWindow", "&Win"},
    {1, "mnuWinAlwaysOnTop", "&Always on Top"},
    {1, "mnuWinMicroWindow", "&Micro Window", "Ctrl+S"},
    {1, "mnuWinModes", "M&odes"},
    {2, "mnuWinMode(0)", "&Adding Machine", "Ctrl+A"},
    {2, "mnuWinMode(1)", "&Calculator", "Ctrl+T", true},
    {1, "mnuWinFinancialCalc", "&Financial Calc"},
    {2, "mnuWinFinCalcLoan", "Loan Calc"},
    {2, "mnuWinFinCalcInv", "Investment Calc"},
    {2, "mnuFinCalcStandard", "Standard Calc"},
    {1, "mnuWinPadTape", "&Pad Tape"},
    {1, "mnuWinTapeOff", "&Tape Off", "Ctrl+O"},
    {0, "mnuHelp", "&Help"},
    {1, "mnuHelpContents", "Tallyrex &Help"},
    {1, "mnuHsep1", "-"},
    {1, "mnuHelpAbout", "&About Tallyrex"},
});

constexpr controls::WindowLayout kLayout = {.name = "frmCalc",
                                            .caption = "Calc Mode",
                                            .place = {500, 500, 6690, 3525},
                                            .controls = kControls,
                                            .menu = kMenu,
                                            .resizable = true,
                                            .smallestWidth = kMicroWidth,
                                            .smallestHeight = kMicroHeight};

}  // namespace

const controls::WindowLayout& frmCalcLayout() {
  return kLayout;
}

}  // namespace shell
