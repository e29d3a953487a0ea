#pragma once

#include <string>

namespace program {

/// While there is one, the system's Notepad is another program, or none. Its own comes back with
/// the end.
class ReplacedNotepad {
 public:
  ReplacedNotepad();
  ~ReplacedNotepad();
  ReplacedNotepad(const ReplacedNotepad&) = delete;
  ReplacedNotepad& operator=(const ReplacedNotepad&) = delete;

  /// The stand-in beside the tests takes its place; `kind` tells it what to do. False where the
  /// system does not let its files be replaced.
  bool with(const std::wstring& kind);
  /// There is none. False where the system does not let it be removed.
  bool byNothing();

 private:
  std::wstring folder_;
  std::wstring real_;
};

}  // namespace program
