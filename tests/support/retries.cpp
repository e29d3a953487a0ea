#include "support/retries.h"

#include <cstdio>
#include <map>
#include <mutex>
#include <string>

namespace support {
namespace {

// A full run needs up to 42 in one program, the more the slower the machine.
constexpr int kMost = 80;

std::mutex mutex;
std::map<std::string, int> counts;

}  // namespace

void noteRetry(const char* what) {
  const std::scoped_lock lock(mutex);
  ++counts[what];
}

bool retriesAreFew() {
  const std::scoped_lock lock(mutex);
  int all = 0;
  for (const auto& [what, count] : counts) {
    std::fprintf(stderr, "Retried: %s, %d times\n", what.c_str(), count);
    all += count;
  }
  if (all > kMost) std::fprintf(stderr, "Too many retries: %d, at most %d\n", all, kMost);
  return all <= kMost;
}

}  // namespace support
