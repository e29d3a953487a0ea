#pragma once

#include <windows.h>

#include <exception>

#include "controls/event_loop.h"

namespace win32 {

/// Tells the user that the program cannot go on, and ends it.
[[noreturn]] void endAfter(const char* error) noexcept;

/// What the system calls runs as one event of the program. No exception gets through to the system,
/// which may swallow it and go on with half a handler done.
template <class Body>
LRESULT atTheEdge(controls::EventLoop& events, const Body& body) noexcept {
  try {
    LRESULT result = 0;
    events.runEvent([&] { result = body(); });
    return result;
  } catch (const std::exception& error) {
    endAfter(error.what());
  } catch (...) {
    endAfter("unknown error");
  }
}

}  // namespace win32
