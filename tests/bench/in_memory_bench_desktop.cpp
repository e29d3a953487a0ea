#include "bench/bench_desktop.h"
#include "inmemory/desktop.h"

namespace bench {

BenchDesktop::BenchDesktop() : desktop_(std::make_unique<inmemory::Desktop>()) {}

BenchDesktop::~BenchDesktop() = default;

void BenchDesktop::paint() {}

}  // namespace bench
