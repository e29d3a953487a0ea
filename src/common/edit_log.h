#pragma once

#include <string>
#include <string_view>

namespace common {

/// `removed` units of a text, from the place `start` on, have given way to `inserted`. Places and
/// lengths are counted in UTF-16 units; what was inserted is UTF-8.
struct TextEdit {
  int start = 0;
  int removed = 0;
  std::string_view inserted = {};
};

/// The edit as a record, by which it can be made again. Records are put one behind the other.
std::string editRecord(const TextEdit& edit);

/// The text that the recorded edits make of an empty one. It ends with the last record in front of
/// one that is damaged or incomplete.
std::string replayEdits(std::string_view records);

}  // namespace common
