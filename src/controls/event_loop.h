#pragma once

#include <cassert>
#include <deque>
#include <functional>
#include <utility>

namespace controls {

/// Ends the handler that waits for a dialog, because the window that asked is being closed.
struct DialogDismissed {};

/// The order of the program's events. An event is what comes in from outside: a key, a click, a
/// message of the system. What its handlers post runs when the outermost event has ended, in the
/// order in which it was posted.
class EventLoop {
 public:
  /// Runs one event and, when it was the outermost, everything posted meanwhile.
  template <class Body>
  void runEvent(Body&& body) {
    runHandler(body);
    while (depth_ == 0 && !tasks_.empty()) {
      const auto task = std::move(tasks_.front());
      tasks_.pop_front();
      runHandler(task);
    }
  }

  /// Leaves a task for the end of the running event. Outside an event it runs at once.
  void post(std::function<void()> task) {
    tasks_.push_back(std::move(task));
    if (depth_ == 0) runEvent([] {});
  }

 private:
  // An exception must not leave the loop believing that an event still runs.
  class Depth {
   public:
    explicit Depth(int& depth) : depth_(depth) { ++depth_; }
    ~Depth() { --depth_; }
    Depth(const Depth&) = delete;
    Depth& operator=(const Depth&) = delete;

   private:
    int& depth_;
  };

  template <class Handler>
  void runHandler(const Handler& handler) {
    Depth depth(depth_);
    try {
      handler();
    } catch (const DialogDismissed&) {
    }
  }

  int depth_ = 0;
  std::deque<std::function<void()>> tasks_;
};

}  // namespace controls
