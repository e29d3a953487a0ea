#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "desktop/program/hands.h"
#include "desktop/program/tested_program.h"
#include "desktop/program/user_settings.h"
#include "support/started_programs.h"
#include "support/wait.h"
#include "support/windows.h"

namespace program {

using namespace support;

/// The program on a user's desktop. It starts without settings, and everything that it has opened
/// is closed, however a test ends.
class ProgramTest : public testing::Test {
 public:
  static void setProgram(TestedProgram& program) { program_ = &program; }

 protected:
  void SetUp() override;
  void TearDown() override;

  static TestedProgram& program() { return *program_; }
  UserSettings& settings() { return settings_; }

  void start() { program().start(); }
  /// Closes the main window as a click on its close box does, and waits for the program to end.
  void close();

  /// Waits until a window has the text; reports a different one.
  static void expectText(HWND window, const std::wstring& text);
  /// Waits until a window of the program is in front. On Wine, closing a window may leave no window
  /// with the keyboard; then this one is activated.
  static void awaitInFront(HWND window);
  /// Waits for a message box or another system dialog, and returns it.
  static HWND awaitDialog();
  /// Waits for a message with that text, which must appear.
  HWND expectMessage(const std::wstring& text);
  /// Answers the visible message with a key, and waits until it has closed.
  void answer(WORD key);

  /// Waits until the same control of the program has had the focus for a while. On Wine, a late
  /// notification about a new or closed window closes a menu that has been opened meanwhile.
  static void awaitRest();
  /// Opens a menu with Alt and its letter, and chooses items by letters.
  static void chooseFromMenu(WORD menu, std::string_view letters);
  /// Opens the Loan, Investment or Standard calculator: 0, 1 or 2. Its note appears first.
  static void chooseCalculator(int place);
  /// Opens one of the calculators, answers its note, and returns its window, which is in front.
  HWND openCalculator(int place, const std::wstring& title);
  /// Opens the About box, and returns its window, which is in front.
  static HWND openAboutBox();
  /// Clicks into the tape, and waits until it has the focus.
  static void clickTape();
  /// What screen readers call the controls of the main window that take the focus, in tab order.
  static std::vector<std::wstring> namesInTabOrder();
  /// Whether the main window is always on top.
  static bool isOnTop();
  /// Whether a toggle of the main window is down.
  static bool isPressed(const std::wstring& toggle);
  /// A window of another program that the test or the program has started; null without one.
  static HWND openedWindow(std::wstring_view windowClass);
  /// Ends such a program, and waits for its end.
  static void endProcessOf(HWND window);
  /// Ends the editors and help viewers that have been started.
  static void endOpened();

 private:
  static TestedProgram* program_;
  UserSettings settings_{program_->name()};
};

}  // namespace program
