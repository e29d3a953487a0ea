#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "desktop/program/hands.h"
#include "desktop/program/tested_program.h"
#include "desktop/program/user_settings.h"
#include "support/wait.h"
#include "support/windows.h"

namespace program {

using namespace support;

/// The program on a user's desktop. It starts without settings, and nothing that it has opened is
/// left behind, however a test ends.
class ProgramTest : public testing::Test {
 public:
  static void setProgram(TestedProgram& program) { program_ = &program; }

 protected:
  void SetUp() override;
  void TearDown() override;

  static TestedProgram& program() { return *program_; }
  UserSettings& settings() { return settings_; }

  void start() { program().start(); }
  /// Closes the main window as a click on its cross does, and waits for the program's end.
  void close();

  /// Waits until a window has the text; reports it when it has another.
  static void expectText(HWND window, const std::wstring& text);
  /// Waits until a window of the program's is in front. On Wine, closing a window may leave the
  /// keys with nobody; then the user goes to that window.
  static void awaitInFront(HWND window);
  /// Waits for a message or another dialog of the system's, and gives it.
  static HWND awaitDialog();
  /// Waits for a message of the program's with that text, which must come.
  HWND expectMessage(const std::wstring& text);
  /// Answers the message that is shown by a key, and waits until it is gone.
  void answer(WORD key);

  /// Waits until the same control of the program has had the focus for a while. On Wine the
  /// screen's news of a window that has come or gone closes a menu that has been opened in the
  /// meantime.
  static void awaitRest();
  /// Opens a menu with Alt and its letter, and chooses in it by letters.
  static void chooseFromMenu(WORD menu, std::string_view letters);
  /// Opens the Loan, the Investment or the Standard calculator: 0, 1 or 2. Its note comes first.
  static void chooseCalculator(int place);
  /// Opens one of the calculators, sees its note off, and gives its window, which is in front.
  HWND openCalculator(int place, const std::wstring& title);
  /// Whether a toggle of the main window is down.
  static bool isPressed(const std::wstring& toggle);
  /// A window of another program that has opened during the test; null without one.
  HWND openedWindow(std::wstring_view windowClass) const;
  /// Ends another program that has opened during the test, and waits until it is gone.
  static void endProcessOf(HWND window);

 private:
  static TestedProgram* program_;
  UserSettings settings_{program_->name()};
  std::vector<HWND> shownBefore_;
};

}  // namespace program
