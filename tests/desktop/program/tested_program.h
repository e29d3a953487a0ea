#pragma once

#include <windows.h>

#include <string>

namespace program {

/// The finished program, started as a user starts it, seen from outside.
class TestedProgram {
 public:
  /// Takes a copy of the program and of its help under a name of their own: the settings go by that
  /// name, so those of the user who runs the tests stay as they are.
  TestedProgram(const std::wstring& program, const std::wstring& help);
  ~TestedProgram();
  TestedProgram(const TestedProgram&) = delete;
  TestedProgram& operator=(const TestedProgram&) = delete;

  /// Without its extension.
  const std::wstring& name() const { return name_; }
  const std::wstring& file() const { return program_; }
  const std::wstring& helpFile() const { return help_; }

  /// Starts it, and does not wait. Its window is to be shown as SW_... says.
  void launch(WORD show = SW_SHOWDEFAULT);
  /// Starts it, and waits until keys go to the entry box.
  void start();
  bool running() const;
  /// Waits until it has ended by itself; throws NotSeen when it does not.
  void awaitEnd() const;
  /// Of a program that has ended.
  DWORD exitCode() const;
  /// Ends it, whatever it shows.
  void kill();
  /// Has a thread of it run at an address, where nothing is.
  void runAt(ULONG_PTR address) const;
  /// From now on it is given no memory. False where what gives it cannot be found from here.
  bool takeMemory() const;
  bool owns(HWND window) const;

  /// Null while it is not shown.
  HWND mainWindow() const;
  /// The window of the program, other than a message, whose title ends so; null without one.
  HWND windowTitled(const std::wstring& ending) const;
  /// The message box or other dialog of the system's that it shows; null without one.
  HWND dialog() const;
  /// The control with the focus.
  HWND focus() const;

  HWND entry() const;
  HWND decimals() const;
  HWND tape() const;
  /// A key or a toggle of a window by the text that it gives away, without its "&"; null when it is
  /// not shown.
  static HWND key(HWND window, const std::wstring& text);

 private:
  std::wstring folder_;
  std::wstring name_ = L"TallyrexUnderTest";
  std::wstring program_;
  std::wstring help_;
  HANDLE process_ = nullptr;
  DWORD processId_ = 0;
};

/// A control's text without the "&" of its access key.
std::wstring plainTextOf(HWND control);

}  // namespace program
