#pragma once

#include <string>
#include <string_view>

namespace common {

/// An edit of a text: `inserted` replaces `removed` units from position `start`. Positions and
/// lengths are in UTF-16 units; the inserted text is UTF-8.
struct TextEdit {
  int start = 0;
  int removed = 0;
  std::string_view inserted = {};
};

/// The edit as a record from which it can be replayed. Records are simply appended to each other.
std::string editRecord(const TextEdit& edit);

/// The text that results when the recorded edits are applied to an empty one. Stops at the first
/// record that is damaged or incomplete.
std::string replayEdits(std::string_view records);

}  // namespace common
