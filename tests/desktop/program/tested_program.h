#pragma once

#include <windows.h>

#include <string>

namespace program {

/// The window class of its windows.
inline constexpr wchar_t kWindowClass[] = L"TallyrexWindow";

/// The finished program, started as by a user and seen from outside.
class TestedProgram {
 public:
  /// Copies the program and its help under another name. Settings are stored under that name, so
  /// those of the user who runs the tests do not change.
  TestedProgram(const std::wstring& program, const std::wstring& help);
  ~TestedProgram();
  TestedProgram(const TestedProgram&) = delete;
  TestedProgram& operator=(const TestedProgram&) = delete;

  /// Without its extension.
  const std::wstring& name() const { return name_; }
  const std::wstring& file() const { return program_; }
  const std::wstring& helpFile() const { return help_; }

  /// Starts it without waiting. `SW_...` is the requested state of its window.
  void launch(WORD show = SW_SHOWDEFAULT);
  /// Starts it and waits until keys go to the entry box.
  void start();
  bool running() const;
  /// Waits until it has ended by itself; throws NotSeen if it does not.
  void awaitEnd() const;
  /// The exit code, after the program has ended.
  DWORD exitCode() const;
  /// Kills it.
  void kill();
  /// Starts a thread in it at an invalid address.
  void runAt(ULONG_PTR address) const;
  /// From now on it gets no memory. False if its allocation function cannot be found.
  bool takeMemory() const;
  bool owns(HWND window) const;

  /// Null while it is not visible.
  HWND mainWindow() const;
  /// The window of the program, other than a message box, whose title ends so; null without one.
  HWND windowTitled(const std::wstring& ending) const;
  /// Its visible message box or other system dialog; null without one.
  HWND dialog() const;
  /// The focused control.
  HWND focus() const;

  HWND entry() const;
  HWND decimals() const;
  HWND tape() const;
  /// A key or a toggle of a window by its window text, without "&"; null if it is not visible.
  static HWND key(HWND window, const std::wstring& text);

 private:
  std::wstring folder_;
  std::wstring name_ = L"TallyrexUnderTest";
  std::wstring program_;
  std::wstring help_;
  HANDLE process_ = nullptr;
  DWORD processId_ = 0;
};

/// A control's text without "&".
std::wstring plainTextOf(HWND control);

}  // namespace program
