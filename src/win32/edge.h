#pragma once

#include <windows.h>

#include "controls/event_loop.h"

namespace win32 {

/// Tells the user that the program cannot go on after the present exception, and ends it.
[[noreturn]] void endAfterException() noexcept;

/// What the system calls runs as one event of the program. No exception gets through to the system,
/// which may swallow it and go on with half a handler done.
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
