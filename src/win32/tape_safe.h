#pragma once

#include <string>
#include <vector>

#include "controls/tape_safe.h"
#include "win32/kept_file.h"

namespace win32 {

/// Keeps the tape of each run in its own file, in a folder shared by all runs of the program. The
/// file is created with the first line; a run that is killed leaves it behind.
class TapeSafe : public controls::TapeSafe {
 public:
  /// Without a folder, or if it cannot be written to, nothing is kept.
  explicit TapeSafe(std::wstring folder) : folder_(std::move(folder)) {}

  void forgetLostTapes() override;

 protected:
  void store(std::string_view records) override;
  void discard() override;
  std::vector<std::string> lostRecords() override;

 private:
  bool makeFile();
  /// Also removes empty folders.
  void removeFolders() const;

  std::wstring folder_;
  KeptFile file_;
  // Writing has failed for this tape; further records would follow a gap.
  bool failed_ = false;
  std::vector<KeptFile> lost_;
};

/// The folder for the tapes of the program with that name; empty if the user has none.
std::wstring tapeFolder(const std::string& programName);

}  // namespace win32
