#include "shell/frm_calc.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "inmemory/desktop.h"
#include "inmemory/window.h"
#include "shell/frm_calc_layout.h"
#include "shell/help_file.h"

namespace shell {
namespace {

class DriveRootDesktop : public inmemory::Desktop {
 public:
  std::string programFolder() override { return "D:\\"; }
};

class LockedClipboardDesktop : public inmemory::Desktop {
 public:
  bool setClipboardText(std::string_view) override { return false; }
};

/// Where the user acts while Notepad is being started.
class SlowNotepadDesktop : public inmemory::Desktop {
 public:
  bool startProgramAndPaste(const std::string& program) override {
    if (const auto act = std::exchange(meanwhile, nullptr)) act();
    return inmemory::Desktop::startProgramAndPaste(program);
  }
  std::function<void()> meanwhile;
};

class EmptyProgram : public Program {
 public:
  void openFinancialCalc(common::AnnuityKind) override {}
  void showAbout(std::function<void()>) override {}
  void unloadCalc() override {}
  controls::Color focusColor() const override { return kDefaultFocusColor; }
  void setFocusColor(controls::Color) override {}
  std::string helpFile() const override { return ""; }
};

/// How often the system is asked to put a window on top, or no longer there.
int onTopRequests = 0;

class CountingWindow : public inmemory::Window {
 public:
  using inmemory::Window::Window;

 protected:
  void showOnTop() override {
    ++onTopRequests;
    inmemory::Window::showOnTop();
  }
};

class CountingDesktop : public inmemory::Desktop {
 public:
  CountingDesktop() { onTopRequests = 0; }
  std::unique_ptr<controls::Window> createWindow(const controls::WindowLayout& layout) override {
    return std::make_unique<CountingWindow>(*this, layout);
  }
};

// The main window, shown on a desktop.
template <class Desktop>
struct Shown {
  Desktop desktop;
  EmptyProgram program;
  frmCalc calc{desktop, program};

  Shown() { calc.show(); }
  controls::TextBox& box(std::string_view name) { return calc.window().textBox(name); }
  void choose(std::string_view name) { calc.window().menuItem(name).choose(); }
};

TEST(MainWindow, TapeAndEntryUseFixedWidthFonts) {
  using controls::ControlKind;
  for (const controls::ControlLayout& control : frmCalcLayout().controls) {
    if (control.name == "txtTape") {
      EXPECT_EQ(control.font.name, "Terminal");
    } else if (control.name == "txtEntry") {
      EXPECT_EQ(control.font.name, "Courier New");
    } else if (control.kind == ControlKind::Button || control.kind == ControlKind::ToggleButton) {
      EXPECT_EQ(control.font.name, "MS Sans Serif") << control.name;
    }
  }
}

TEST(MainWindow, InitialTitleIsCalcMode) {
  EXPECT_EQ(frmCalcLayout().caption, "Calc Mode");
}

TEST(MainWindow, HelpFileOnADriveRootIsBesideTheProgram) {
  DriveRootDesktop desktop;
  desktop.files = {"D:\\help\\Tallyrex.hlp"};
  EXPECT_EQ(findHelpFile(desktop), "D:\\Tallyrex.hlp");
}

TEST(MainWindow, DecimalsBoxKeepsTheFocusWhenTabIsReleased) {
  Shown<inmemory::Desktop> shown;
  constexpr controls::KeyCode kKeyShift = 16;
  controls::TextBox& txtDec = shown.box("txtDec");
  txtDec.setFocus();
  txtDec.keyUp(controls::kKeyTab);
  txtDec.keyUp(kKeyShift);
  EXPECT_TRUE(txtDec.focused());
  txtDec.keyUp('5');
  EXPECT_TRUE(shown.box("txtEntry").focused());
}

TEST(MainWindow, DecimalsBoxDiscardsWhatIsNoDigit) {
  Shown<inmemory::Desktop> shown;
  controls::KeyAscii key = 'x';
  shown.box("txtDec").onKeyPress(key);
  EXPECT_EQ(key, 0);
  EXPECT_EQ(shown.desktop.beeps, 1);
}

TEST(MainWindow, IsNotMovedAtTheStartUnlessItIsAlwaysOnTop) {
  {
    const Shown<CountingDesktop> shown;
    EXPECT_EQ(onTopRequests, 0);
  }
  CountingDesktop desktop;
  desktop.settings().write("Settings", "frmCalcmnuWinAlwaysOnTop", "True");
  EmptyProgram program;
  frmCalc calc(desktop, program);
  calc.show();
  EXPECT_EQ(onTopRequests, 1);
  EXPECT_TRUE(calc.window().onTop());
  calc.window().menuItem("mnuWinAlwaysOnTop").choose();
  EXPECT_EQ(onTopRequests, 2);
}

TEST(MainWindow, FailedCutLosesNothing) {
  Shown<LockedClipboardDesktop> shown;
  shown.box("txtEntry").setText("12");
  shown.box("txtEntry").selectAll();
  shown.choose("mnuEditCut");
  EXPECT_EQ(shown.box("txtEntry").text(), "12");
  shown.choose("mnuEditCopy");
  EXPECT_EQ(shown.desktop.beeps, 2);
}

TEST(MainWindow, FailedCopyIsNotPastedIntoNotepad) {
  Shown<LockedClipboardDesktop> shown;
  shown.choose("mnuWinPadTape");
  shown.choose("mnuEditTapeToNotepad");
  EXPECT_TRUE(shown.desktop.launches.empty());
  ASSERT_EQ(shown.desktop.boxes.size(), 1u);
  EXPECT_EQ(shown.desktop.boxes[0].box.text, "Error finding or displaying NotePad.exe");
  shown.choose("mnuEditCopyTape");
  EXPECT_EQ(shown.desktop.beeps, 1);
}

TEST(MainWindow, BeepsWhileTheTapeIsOnItsWayToNotepad) {
  Shown<SlowNotepadDesktop> shown;
  shown.choose("mnuWinPadTape");
  shown.desktop.meanwhile = [&] { shown.choose("mnuEditTapeToNotepad"); };
  shown.choose("mnuEditTapeToNotepad");
  EXPECT_EQ(shown.desktop.beeps, 1);
  EXPECT_EQ(shown.desktop.launches.size(), 1u);
  shown.choose("mnuEditTapeToNotepad");
  EXPECT_EQ(shown.desktop.beeps, 1);
  EXPECT_EQ(shown.desktop.launches.size(), 2u);
}

TEST(MainWindow, TapeDrawsAndSpeaksItsLines) {
  Shown<inmemory::Desktop> shown;
  const controls::TextBox& tape = shown.box("txtTape");
  EXPECT_EQ(tape.styleOfLine("12.00 * "), controls::LineStyle::Total);
  EXPECT_EQ(tape.spokenLine("12.00 * "), "total 12.00");
}

TEST(MainWindow, KeypadSendsTheKeysOfTheKeyboard) {
  Shown<inmemory::Desktop> shown;
  std::vector<controls::KeyCode> released;
  shown.box("txtEntry").onKeyUp = [&](controls::KeyCode key) { released.push_back(key); };
  for (const auto* name : {"cmdNumber(0)", "cmdNumber(9)", "cmdPeriod", "cmdArrow"})
    shown.calc.window().button(name).click();
  constexpr controls::KeyCode kPoint = 190;
  EXPECT_EQ(released, (std::vector<controls::KeyCode>{'0', '9', kPoint, controls::kKeyBackspace}));
}

TEST(MainWindow, FigureTypedOnAKeyIsDiscardedThere) {
  Shown<inmemory::Desktop> shown;
  controls::KeyAscii key = '7';
  shown.calc.window().button("cmdPlus").onKeyPress(key);
  EXPECT_EQ(key, 0);
  EXPECT_EQ(shown.box("txtEntry").text(), "7");
}

}  // namespace
}  // namespace shell
