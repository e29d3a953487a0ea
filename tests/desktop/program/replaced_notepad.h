#pragma once

#include <string>

namespace program {

/// Replaces or removes the system's Notepad while it exists, and restores it at the end.
class ReplacedNotepad {
 public:
  ReplacedNotepad();
  ~ReplacedNotepad();
  ReplacedNotepad(const ReplacedNotepad&) = delete;
  ReplacedNotepad& operator=(const ReplacedNotepad&) = delete;

  /// Replaces it by the stand-in beside the tests; `kind` tells that what to do. False if the
  /// system protects its files.
  bool with(const std::wstring& kind);
  /// Removes it. False if the system protects its files.
  bool byNothing();

 private:
  std::wstring folder_;
  std::wstring real_;
};

}  // namespace program
