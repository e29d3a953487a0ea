#include "common/edit_log.h"

#include <cstdint>
#include <cstring>

#include "common/unicode.h"

namespace common {
namespace {

// What precedes the inserted bytes.
struct Header {
  std::uint32_t start;
  std::uint32_t removed;
  std::uint32_t bytes;
  std::uint32_t checksum;
};
static_assert(sizeof(Header) == 16);

// FNV-1a: not zero for a run of zeros, which a power cut may leave in a file.
std::uint32_t checksum(const Header& header, std::string_view inserted) {
  constexpr std::uint32_t kBasis = 2166136261;
  constexpr std::uint32_t kPrime = 16777619;
  std::uint32_t sum = kBasis;
  const auto add = [&sum](std::uint32_t part) { sum = (sum ^ part) * kPrime; };
  add(header.start);
  add(header.removed);
  add(header.bytes);
  for (const char byte : inserted) add(static_cast<unsigned char>(byte));
  return sum;
}

}  // namespace

std::string editRecord(const TextEdit& edit) {
  Header header = {};
  header.start = static_cast<std::uint32_t>(edit.start);
  header.removed = static_cast<std::uint32_t>(edit.removed);
  header.bytes = static_cast<std::uint32_t>(edit.inserted.size());
  header.checksum = checksum(header, edit.inserted);
  std::string record(sizeof header, '\0');
  std::memcpy(record.data(), &header, sizeof header);
  return record.append(edit.inserted);
}

std::string replayEdits(std::string_view records) {
  std::u16string text;
  Header header = {};
  while (records.size() >= sizeof header) {
    std::memcpy(&header, records.data(), sizeof header);
    records.remove_prefix(sizeof header);
    const std::string_view inserted = records.substr(0, header.bytes);
    const bool whole = inserted.size() == header.bytes &&
                       header.checksum == checksum(header, inserted) &&
                       header.start <= text.size() && header.removed <= text.size() - header.start;
    if (!whole) break;
    text.replace(header.start, header.removed, toUtf16(inserted));
    records.remove_prefix(header.bytes);
  }
  return toUtf8(text);
}

}  // namespace common
