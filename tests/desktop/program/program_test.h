#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "desktop/program/hands.h"
#include "desktop/program/outside.h"
#include "desktop/program/tested_program.h"
#include "desktop/program/user_settings.h"
#include "desktop/program/wait.h"

namespace program {

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
  /// Waits for a message of the program's with that text, which must come.
  HWND expectMessage(const std::wstring& text);
  /// Answers the message that is shown by a key, and waits until it is gone.
  void answer(WORD key);

  /// Opens a menu with Alt and its letter, and chooses in it by letters.
  static void chooseFromMenu(WORD menu, std::string_view letters);
  /// A window of another program that has opened during the test; null without one.
  HWND openedWindow(std::wstring_view windowClass) const;

 private:
  static TestedProgram* program_;
  UserSettings settings_{program_->name()};
  std::vector<HWND> shownBefore_;
};

}  // namespace program
