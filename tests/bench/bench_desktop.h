#pragma once

#include <memory>

#include "controls/desktop.h"

namespace bench {

/// The desktop of a benchmark, of the kind that it was built for.
class BenchDesktop {
 public:
  BenchDesktop();
  ~BenchDesktop();
  BenchDesktop(const BenchDesktop&) = delete;
  BenchDesktop& operator=(const BenchDesktop&) = delete;

  controls::Desktop& desktop() { return *desktop_; }
  /// Paints what has changed.
  void paint();

 private:
  std::unique_ptr<controls::Desktop> desktop_;
};

}  // namespace bench
