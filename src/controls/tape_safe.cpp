#include "controls/tape_safe.h"

#include "common/unicode.h"

namespace controls {

void TapeSafe::record(const common::TextEdit& edit) {
  const bool begins = edit.removed == length_;
  if (begins) clear();
  length_ += static_cast<int>(common::toUtf16(edit.inserted).size()) - (begins ? 0 : edit.removed);
  const std::string record = common::editRecord(
      {.start = edit.start, .removed = begins ? 0 : edit.removed, .inserted = edit.inserted});
  if (begins && edit.inserted.find('\n') == std::string_view::npos) {
    head_ = record;
    return;
  }
  store(head_ + record);
  head_.clear();
}

void TapeSafe::clear() {
  discard();
  head_.clear();
  length_ = 0;
}

std::string TapeSafe::lostTapes() {
  std::string tapes;
  for (const std::string& records : lostRecords()) {
    const std::string tape = common::replayEdits(records);
    if (tape.empty()) continue;
    if (!tapes.empty()) tapes += "\r\n\r\n";
    tapes += tape;
  }
  return tapes;
}

}  // namespace controls
