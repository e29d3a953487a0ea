#pragma once

#include <string>
#include <vector>

#include "controls/tape_safe.h"
#include "win32/kept_file.h"

namespace win32 {

/// Keeps the tape of each run in a file of its own, in a folder that all runs of the program share.
/// The file is there from the first line on; a run that is ended without a word leaves it behind.
class TapeSafe : public controls::TapeSafe {
 public:
  /// Without a folder, and where the folder cannot be written to, nothing is kept.
  explicit TapeSafe(std::wstring folder) : folder_(std::move(folder)) {}

  void forgetLostTapes() override;

 protected:
  void store(std::string_view records) override;
  void discard() override;
  std::vector<std::string> lostRecords() override;

 private:
  bool makeFile();
  /// With nothing left to keep, the folders go too.
  void removeFolders() const;

  std::wstring folder_;
  KeptFile file_;
  // The disk has failed this tape: what would come next would stand behind a gap.
  bool failed_ = false;
  std::vector<KeptFile> lost_;
};

/// The folder for the tapes of the program of that name; empty where the user has none.
std::wstring tapeFolder(const std::string& programName);

}  // namespace win32
