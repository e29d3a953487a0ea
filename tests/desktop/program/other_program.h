#pragma once

#include <windows.h>

#include <string>

namespace program {

/// A window of another program: the user types into it while it is in front.
class OtherProgram {
 public:
  OtherProgram();
  ~OtherProgram();
  OtherProgram(const OtherProgram&) = delete;
  OtherProgram& operator=(const OtherProgram&) = delete;

  HWND window() const { return window_; }
  /// Brings it to the front, and waits until keys go to it.
  void comeToFront();
  /// Processes its messages.
  void work();
  std::wstring text() const;
  /// The keys pressed in it, even if its text no longer had the focus.
  const std::wstring& keys() const { return keys_; }

 private:
  HWND window_;
  std::wstring keys_;
};

}  // namespace program
