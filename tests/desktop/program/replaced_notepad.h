#pragma once

#include <string>

namespace program {

/// Puts back the system's Notepad after a test that was killed while another one stood in for it.
void putBackNotepad();

/// Replaces or removes Wine's Notepad while it exists, and puts it back at the end. Windows keeps
/// its own: nothing may replace it there.
class ReplacedNotepad {
 public:
  ReplacedNotepad();
  ~ReplacedNotepad();
  ReplacedNotepad(const ReplacedNotepad&) = delete;
  ReplacedNotepad& operator=(const ReplacedNotepad&) = delete;

  /// Replaces it by the stand-in beside the tests; `kind` tells that what to do. False if it cannot
  /// be replaced.
  bool with(const std::wstring& kind);
  /// Removes it. False if it cannot be removed.
  bool byNothing();
};

}  // namespace program
