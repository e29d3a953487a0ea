#include "support/retries.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <mutex>
#include <string>

namespace support {
namespace {

// A full run needs up to 42 in one program, the more the slower the machine.
constexpr int kMostInAShortRun = 80;
// A run of half an hour is not held to the same number, but to the same share.
constexpr int kActionsForEachRetry = 100;

std::mutex mutex;
std::map<std::string, int> counts;
int actions = 0;

}  // namespace

void noteAction() {
  const std::scoped_lock lock(mutex);
  ++actions;
}

int mostRetries(int actions) {
  return std::max(kMostInAShortRun, actions / kActionsForEachRetry);
}

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
  const int most = mostRetries(actions);
  if (all > 0) std::fprintf(stderr, "Retried: %d of %d actions\n", all, actions);
  if (all > most) std::fprintf(stderr, "Too many retries: %d, at most %d\n", all, most);
  return all <= most;
}

}  // namespace support
