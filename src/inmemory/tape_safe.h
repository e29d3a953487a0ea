#pragma once

#include "controls/tape_safe.h"

namespace inmemory {

/// A safe without a disk: what it stores outlives the program, but not the test.
class TapeSafe : public controls::TapeSafe {
 public:
  void forgetLostTapes() override { lost_.clear(); }

  /// The run has ended without clearing its tape, as in a crash.
  void lose() {
    if (!stored_.empty()) lost_.push_back(stored_);
    clear();
  }
  /// The number of bytes stored for this run.
  std::size_t size() const { return stored_.size(); }

 protected:
  void store(std::string_view records) override { stored_ += records; }
  void discard() override { stored_.clear(); }
  std::vector<std::string> lostRecords() override { return lost_; }

 private:
  std::string stored_;
  std::vector<std::string> lost_;
};

}  // namespace inmemory
