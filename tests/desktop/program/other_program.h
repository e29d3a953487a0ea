#pragma once

#include <windows.h>

#include <string>

namespace program {

/// A window of the tests' own beside the program: what the user types goes into it while it is in
/// front.
class OtherProgram {
 public:
  OtherProgram();
  ~OtherProgram();
  OtherProgram(const OtherProgram&) = delete;
  OtherProgram& operator=(const OtherProgram&) = delete;

  HWND window() const { return window_; }
  /// Brings it in front, and waits until keys go to it.
  void comeToFront();
  /// Lets it take what has arrived.
  void work();
  std::wstring text() const;
  /// The keys that have gone down in it, also while its text did not have the focus any more.
  const std::wstring& keys() const { return keys_; }

 private:
  HWND window_;
  std::wstring keys_;
};

}  // namespace program
