#include "bench/bench_desktop.h"
#include "win32/desktop.h"
#include "win32/message_loop.h"

namespace bench {

BenchDesktop::BenchDesktop()
    : desktop_(std::make_unique<win32::Desktop>("Software\\Tallyrex Benchmark")) {}

BenchDesktop::~BenchDesktop() = default;

void BenchDesktop::paint() {
  win32::dispatchWaiting(static_cast<win32::Desktop&>(*desktop_));
}

}  // namespace bench
