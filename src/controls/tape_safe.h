#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "common/edit_log.h"

namespace controls {

/// Keeps a copy of the tape that survives a crash, a power failure or a killed process. It is
/// deleted when the tape is cleared or its window closes. An implementation stores records; if it
/// cannot, the tape is not kept, and nothing else changes.
class TapeSafe {
 public:
  virtual ~TapeSafe() = default;

  /// The tape has changed. The cost does not depend on the length of the tape.
  void record(const common::TextEdit& edit);
  /// The tape has ended normally.
  void clear();

  /// The tapes of runs that did not end normally, the oldest first, separated by an empty line;
  /// empty when there are none.
  std::string lostTapes();
  /// Deletes the tapes that lostTapes has returned.
  virtual void forgetLostTapes() = 0;

 protected:
  /// Appends records to those stored; creates the storage for the first.
  virtual void store(std::string_view records) = 0;
  /// Deletes what has been stored.
  virtual void discard() = 0;
  /// The records that other runs have left behind, the oldest run first. A program that is still
  /// running has left none.
  virtual std::vector<std::string> lostRecords() = 0;

 private:
  // In UTF-16 units.
  int length_ = 0;
  // A tape with only its header is not worth keeping: it is stored with the first line.
  std::string head_;
};

}  // namespace controls
