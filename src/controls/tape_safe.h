#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "common/edit_log.h"

namespace controls {

/// Keeps the tape while the program runs, where a crash, a power cut or an end by force does not
/// reach it. A tape that is cleared, or ends with its window, is kept no longer. An implementation
/// stores records; where it cannot, the tape is not kept, and nothing else is different.
class TapeSafe {
 public:
  virtual ~TapeSafe() = default;

  /// The tape has changed. Costs the same however long the tape is.
  void record(const common::TextEdit& edit);
  /// The tape has ended as its user wished.
  void clear();

  /// The tapes of the runs that have not ended normally, the oldest first, with an empty line in
  /// between; empty when there is none.
  std::string lostTapes();
  /// Those of which lostTapes has told are kept no longer.
  virtual void forgetLostTapes() = 0;

 protected:
  /// Stores records behind those that are stored, the first ones in a place of their own.
  virtual void store(std::string_view records) = 0;
  /// Drops what has been stored.
  virtual void discard() = 0;
  /// The records that each of the other runs has left behind, the oldest run first. A run that
  /// still goes on has left none.
  virtual std::vector<std::string> lostRecords() = 0;

 private:
  // In UTF-16 units.
  int length_ = 0;
  // A tape of nothing but its head is no loss: that waits for the first line.
  std::string head_;
};

}  // namespace controls
