#pragma once

#include <windows.h>

#include "controls/event_loop.h"

namespace win32 {

/// Shows the message of the current exception and ends the program.
[[noreturn]] void endAfterException() noexcept;

/// Runs a call from the system as one event of the program. No exception reaches the system, which
/// might swallow it and continue with a half-finished handler.
template <class Body>
LRESULT atTheEdge(controls::EventLoop& events, const Body& body) noexcept {
  try {
    LRESULT result = 0;
    events.runEvent([&] { result = body(); });
    return result;
  } catch (...) {
    endAfterException();
  }
}

}  // namespace win32
