#include "shell/frm_calc_layout.h"

#include "unit/layout_rules.h"

namespace shell {
namespace {

using namespace layout_rules;

TEST(FrmCalcLayout, ControlsFitAndDoNotOverlap) {
  expectAllInSight(frmCalcLayout());
}

TEST(FrmCalcLayout, DigitsAndOperatorsFormAKeypad) {
  const auto& layout = frmCalcLayout();
  expectRow(layout, {"cmdNumber(7)", "cmdNumber(8)", "cmdNumber(9)"});
  expectRow(layout, {"cmdNumber(4)", "cmdNumber(5)", "cmdNumber(6)"});
  expectRow(layout, {"cmdNumber(1)", "cmdNumber(2)", "cmdNumber(3)"});
  expectRow(layout, {"cmdNumber(0)", "cmdPeriod"});
  expectColumn(layout, {"cmdNumber(7)", "cmdNumber(4)", "cmdNumber(1)"});
  expectColumn(layout, {"cmdNumber(8)", "cmdNumber(5)", "cmdNumber(2)"});
  expectColumn(layout, {"cmdNumber(9)", "cmdNumber(6)", "cmdNumber(3)", "cmdPeriod"});
}

TEST(FrmCalcLayout, OperatorsAreSetApartFromTheDigits) {
  const auto& layout = frmCalcLayout();
  expectRow(layout, {"cmdDivide", "cmdArrow"});
  expectRow(layout, {"cmdTimes", "cmdPercent"});
  expectRow(layout, {"cmdMinus", "cmdChangeSign"});
  expectRow(layout, {"cmdPlus", "cmdEquals"});
  expectColumn(layout, {"cmdTimes", "cmdMinus", "cmdPlus"});
  expectColumn(layout, {"cmdPercent", "cmdChangeSign", "cmdEquals"});
  // On the digits' lines, whatever the gap.
  expectRow(layout, {"cmdNumber(9)", "cmdTimes"});
  expectRow(layout, {"cmdNumber(6)", "cmdMinus"});
  expectRow(layout, {"cmdNumber(3)", "cmdPlus"});
  expectRow(layout, {"chkTapeOff", "cmdDivide"});
  const auto gap = [&](std::string_view before, std::string_view behind) {
    return placeOf(layout, behind).left - right(placeOf(layout, before));
  };
  EXPECT_GT(gap("cmdNumber(9)", "cmdTimes"), gap("cmdNumber(8)", "cmdNumber(9)"));
}

TEST(FrmCalcLayout, TogglesAreSetApartFromTheDigits) {
  const auto& layout = frmCalcLayout();
  expectRow(layout, {"chkFloatingDec", "chkShiftDec", "chkTapeOff"});
  expectColumn(layout, {"chkFloatingDec", "cmdNumber(7)"});
  expectColumn(layout, {"chkShiftDec", "cmdNumber(8)"});
  expectColumn(layout, {"chkTapeOff", "cmdNumber(9)"});
  expectColumn(layout, {"cmdDivide", "cmdTimes"});
  expectColumn(layout, {"cmdArrow", "cmdPercent"});
  const auto gap = [&](std::string_view above, std::string_view below) {
    return placeOf(layout, below).top - bottom(placeOf(layout, above));
  };
  EXPECT_GT(gap("chkFloatingDec", "cmdNumber(7)"), gap("cmdNumber(7)", "cmdNumber(4)"));
}

TEST(FrmCalcLayout, ClearAndMemoryKeysFormColumnsBesideTheDigits) {
  const auto& layout = frmCalcLayout();
  expectColumn(layout, {"cmdClearCalc", "cmdClearTape", "cmdClearAll", "cmdSquareRoot"});
  expectColumn(layout, {"cmdClearCurrent", "cmdClearCalc"});
  expectColumn(layout, {"cmdMemRecall", "cmdMemStore", "cmdMemPlus"});
  expectColumn(layout, {"cmdMemClear", "cmdMemRecall"});
  expectRow(layout, {"cmdClearCurrent", "cmdMemClear"});
  expectRow(layout, {"cmdMemRecall", "cmdNumber(7)"});
  for (const auto name : {"cmdMemPlus", "cmdPlus", "cmdEquals"})
    EXPECT_EQ(bottom(placeOf(layout, name)), bottom(placeOf(layout, "cmdPeriod"))) << name;
}

TEST(FrmCalcLayout, EntryKeysDecimalsAndTapeShareTheirEdges) {
  const auto& layout = frmCalcLayout();
  const auto& tape = placeOf(layout, "txtTape");
  const auto& decimals = placeOf(layout, "txtDec");
  EXPECT_EQ(placeOf(layout, "cmdClearCurrent").left, placeOf(layout, "txtEntry").left);
  EXPECT_EQ(placeOf(layout, "cmdArrow").left, decimals.left);
  EXPECT_EQ(right(placeOf(layout, "cmdArrow")), right(decimals));
  EXPECT_EQ(bottom(placeOf(layout, "cmdEquals")), bottom(tape));
  EXPECT_EQ(bottom(tape), layout.place.height - layout.frameHeight());
  EXPECT_EQ(right(tape), layout.place.width - controls::kFrameWidth);
}

TEST(FrmCalcLayout, EdgesAreWholePixelsAt100Percent) {
  for (const auto& control : frmCalcLayout().controls) {
    if (control.kind != kButton && control.kind != kToggle) continue;
    for (const Twips edge :
         {control.place.left, control.place.top, control.place.width, control.place.height})
      EXPECT_EQ(edge % controls::kTwipsPerPixel, 0) << control.name;
  }
}

TEST(FrmCalcLayout, KeysOfAKindHaveTheSameSize) {
  const auto& layout = frmCalcLayout();
  const auto& digit = placeOf(layout, "cmdNumber(5)");
  const controls::Twips gap = placeOf(layout, "cmdNumber(6)").left - right(digit);
  EXPECT_EQ(placeOf(layout, "cmdNumber(0)").width, 2 * digit.width + gap);
  for (const auto& control : layout.controls) {
    if (control.kind != kButton && control.kind != kToggle) continue;
    const bool high =
        control.name == "cmdMemPlus" || control.name == "cmdPlus" || control.name == "cmdEquals";
    EXPECT_EQ(control.place.height, high ? 2 * digit.height + gap : digit.height) << control.name;
  }
}

// In tab order.
constexpr Seen kListed[] = {
    {"txtEntry", kBox, 0, 0, 2175, 375, "", "", "Entry", "", kCourier, 120, true, Alignment::Right},
    {"cmdClearCurrent", kButton, 0, 435, 690, 450, "CE&ntry", "", "Clear e&ntry",
     "Clears only the entry."},
    {"cmdMemClear", kButton, 750, 435, 480, 450, "", "MC", "Memory clear",
     "Clear memory total only."},
    {"cmdDivide", kButton, 2895, 435, 510, 450, "", "\u00F7", "Divide", "", kSans, 135},
    {"cmdArrow", kButton, 3435, 435, 510, 450, "", "\u2190", "Backspace", "", kSans, 135},
    {"cmdClearCalc", kButton, 0, 945, 690, 450, "C&Total", "", "Clear &total",
     "Clears only the total and sets it to zero."},
    {"cmdMemRecall", kButton, 750, 945, 480, 450, "", "MR", "Memory recall",
     "Recall memory total."},
    {"cmdNumber(7)", kButton, 1290, 945, 495, 450, "", "7", "", "", kSans, 135},
    {"cmdNumber(8)", kButton, 1815, 945, 495, 450, "", "8", "", "", kSans, 135},
    {"cmdNumber(9)", kButton, 2340, 945, 495, 450, "", "9", "", "", kSans, 135},
    {"cmdTimes", kButton, 2895, 945, 510, 450, "", "\u00D7", "Multiply", "", kSans, 135},
    {"cmdPercent", kButton, 3435, 945, 510, 450, "", "%", "Percent", "", kSans, 135},
    {"cmdClearTape", kButton, 0, 1425, 690, 450, "CTa&pe", "", "Clear ta&pe",
     "Clears only the tape."},
    {"cmdMemStore", kButton, 750, 1425, 480, 450, "", "MS", "Memory store",
     "Replace memory total with entry."},
    {"cmdNumber(4)", kButton, 1290, 1425, 495, 450, "", "4", "", "", kSans, 135},
    {"cmdNumber(5)", kButton, 1815, 1425, 495, 450, "", "5", "", "", kSans, 135},
    {"cmdNumber(6)", kButton, 2340, 1425, 495, 450, "", "6", "", "", kSans, 135},
    {"cmdMinus", kButton, 2895, 1425, 510, 450, "", "\u2212", "Minus", "", kSans, 135},
    {"cmdChangeSign", kButton, 3435, 1425, 510, 450, "", "\u00B1", "Change sign", "Change Sign",
     kSans, 135},
    {"cmdClearAll", kButton, 0, 1905, 690, 450, "C&All", "", "Clear &all",
     "Clears the entry box, the tape and resets the total to zero but does not clear the memory."},
    {"cmdMemPlus", kButton, 750, 1905, 480, 930, "&M +", "", "&Memory plus",
     "Add entry to memory total."},
    {"cmdNumber(1)", kButton, 1290, 1905, 495, 450, "", "1", "", "", kSans, 135},
    {"cmdNumber(2)", kButton, 1815, 1905, 495, 450, "", "2", "", "", kSans, 135},
    {"cmdNumber(3)", kButton, 2340, 1905, 495, 450, "", "3", "", "", kSans, 135},
    {"cmdPlus", kButton, 2895, 1905, 510, 930, "", "+", "Plus", "", kSans, 150, true},
    {"cmdEquals", kButton, 3435, 1905, 510, 930, "", "=", "Equals", "", kSans, 150, true},
    {"cmdSquareRoot", kButton, 0, 2385, 690, 450, "sqrt", "", "Square root", "Square Root"},
    {"cmdNumber(0)", kButton, 1290, 2385, 1020, 450, "", "0", "", "", kSans, 135},
    {"cmdPeriod", kButton, 2340, 2385, 495, 450, "", ".", "Decimal point", "", kSans, 135},
    {"chkFloatingDec", kToggle, 1290, 435, 495, 450, "", "Float\ndec.", "Floating decimal",
     "Floating decimal is on when pressed down."},
    {"chkShiftDec", kToggle, 1815, 435, 495, 450, "", "Stat.\ndec.", "Stationary decimal",
     "The decimal is stationary until keyed when pressed down."},
    {"chkTapeOff", kToggle, 2340, 435, 495, 450, "", "Tape\noff", "Tape off",
     "Tape is off when pressed down."},
    {"txtTape", kBox, 4000, 40, 2570, 2795, "", "", "Tape", "", kTerminal, 72, false,
     Alignment::Right},
    {"Label1", kLabel, 2400, 75, 1005, 240, "&Decimals:", "", "", "", kSans, 83, false,
     Alignment::Right},
    {"txtDec", kBox, 3435, 0, 510, 375, "", "", "Decimal places",
     "Number of decimal places allowed.", kCourier, 120, true},
};

TEST(FrmCalcLayout, PlacesMatchTheList) {
  expectPlaces(frmCalcLayout(), kListed);
}

TEST(FrmCalcLayout, ControlsMatchTheList) {
  expectSeen(frmCalcLayout(), kListed);
}

using Names = std::vector<std::string_view>;

TEST(FrmCalcLayout, ColorsTellKindsOfKeysApart) {
  using controls::KeyKind;
  const auto keys = [](KeyKind kind) {
    return namesOf(frmCalcLayout(), [kind](const ControlLayout& control) {
      return control.keyKind == kind && (control.kind == kButton || control.kind == kToggle);
    });
  };
  EXPECT_EQ(keys(KeyKind::Plain),
            (Names{"cmdNumber(7)", "cmdNumber(8)", "cmdNumber(9)", "cmdNumber(4)", "cmdNumber(5)",
                   "cmdNumber(6)", "cmdNumber(1)", "cmdNumber(2)", "cmdNumber(3)", "cmdNumber(0)",
                   "cmdPeriod"}));
  EXPECT_EQ(keys(KeyKind::Operator), (Names{"cmdDivide", "cmdArrow", "cmdTimes", "cmdPercent",
                                            "cmdMinus", "cmdChangeSign", "cmdSquareRoot"}));
  EXPECT_EQ(keys(KeyKind::Strong), (Names{"cmdPlus", "cmdEquals"}));
  EXPECT_EQ(keys(KeyKind::Clear),
            (Names{"cmdClearCurrent", "cmdClearCalc", "cmdClearTape", "cmdClearAll"}));
  EXPECT_EQ(keys(KeyKind::Memory),
            (Names{"cmdMemClear", "cmdMemRecall", "cmdMemStore", "cmdMemPlus"}));
  EXPECT_EQ(keys(KeyKind::Toggle), (Names{"chkFloatingDec", "chkShiftDec", "chkTapeOff"}));
}

TEST(FrmCalcLayout, TapeHasLinesAndTheEntryNarrowDigits) {
  for (const auto& control : frmCalcLayout().controls) {
    const bool tape = control.name == "txtTape";
    const bool number = control.name == "txtEntry" || control.name == "txtDec";
    EXPECT_EQ(control.multiLine, tape) << control.name;
    EXPECT_EQ(control.columns, tape ? 26 : 0) << control.name;
    EXPECT_EQ(control.font.characterWidth, number ? 100 : 0) << control.name;
    EXPECT_EQ(control.litName, control.name == "cmdMemPlus" ? "&Memory plus, memory in use" : "")
        << control.name;
  }
}

TEST(FrmCalcLayout, MenusMatchTheList) {
  std::vector<std::string> menu;
  for (const auto& item : frmCalcLayout().menu)
    menu.push_back(std::string(2 * static_cast<std::size_t>(item.level), ' ') +
                   std::string(item.caption) + "|" + std::string(item.name) +
                   (item.shortcut.empty() ? "" : "|" + std::string(item.shortcut)) +
                   (item.checked ? "|checked" : ""));
  const std::vector<std::string> listed = {"&File|mnuFile",
                                           "  &Save|mnuFileSave",
                                           "  &Print|mnuFilePrint",
                                           "  E&xit|mnuFileExit",
                                           "&Edit|mnuEdit",
                                           "  Cu&t|mnuEditCut|Ctrl+X",
                                           "  &Copy|mnuEditCopy|Ctrl+C",
                                           "  &Paste|mnuEditPaste|Ctrl+V",
                                           "  -|mnuEsep1",
                                           "  &Floating Decimal|mnuEditFloatingDecimal|Ctrl+F",
                                           "  &Stationary Decimal|mnuEditStationaryDecimal|Ctrl+D",
                                           "  -|mnuEsep2",
                                           "  Copy &Entire Tape|mnuEditCopyTape",
                                           "  Tape to &Notepad|mnuEditTapeToNotepad|Ctrl+N",
                                           "&Win|mnuWindow",
                                           "  &Always on Top|mnuWinAlwaysOnTop",
                                           "  &Micro Window|mnuWinMicroWindow|Ctrl+S",
                                           "  M&odes|mnuWinModes",
                                           "    &Adding Machine|mnuWinMode(0)|Ctrl+A",
                                           "    &Calculator|mnuWinMode(1)|Ctrl+T|checked",
                                           "  &Financial Calc|mnuWinFinancialCalc",
                                           "    Loan Calc|mnuWinFinCalcLoan",
                                           "    Investment Calc|mnuWinFinCalcInv",
                                           "    Standard Calc|mnuFinCalcStandard",
                                           "  &Pad Tape|mnuWinPadTape",
                                           "  &Tape Off|mnuWinTapeOff|Ctrl+O",
                                           "&Help|mnuHelp",
                                           "  Tallyrex &Help|mnuHelpContents",
                                           "  -|mnuHsep1",
                                           "  &About Tallyrex|mnuHelpAbout"};
  EXPECT_EQ(menu, listed);
}

TEST(FrmCalcLayout, WindowHasTheDesignedSize) {
  const auto& layout = frmCalcLayout();
  EXPECT_EQ(layout.name, "frmCalc");
  EXPECT_EQ(layout.caption, "Calc Mode");
  EXPECT_EQ(layout.place, (controls::Rect{500, 500, 6690, 3525}));
  EXPECT_TRUE(layout.resizable);
  EXPECT_EQ(layout.smallestWidth, 2280);
  EXPECT_EQ(layout.smallestHeight, 1095);
}

}  // namespace
}  // namespace shell
