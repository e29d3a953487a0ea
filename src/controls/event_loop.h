#pragma once

#include <cassert>
#include <deque>
#include <functional>
#include <utility>

namespace controls {

/// Thrown to end a handler that waits for a dialog when the owner of the dialog is closed.
struct DialogDismissed {};

/// The order of the program's events. An event is an input from outside: a key, a click, a message
/// from the system. Tasks that its handlers post run when the outermost event has ended, in the
/// order in which they were posted.
class EventLoop {
 public:
  /// Runs one event and, if it is the outermost, everything posted meanwhile.
  template <class Body>
  void runEvent(Body&& body) {
    runHandler(body);
    while (depth_ == 0 && !tasks_.empty()) {
      const auto task = std::move(tasks_.front());
      tasks_.pop_front();
      runHandler(task);
    }
  }

  /// Queues a task for the end of the current event. Outside an event it runs at once.
  void post(std::function<void()> task) {
    tasks_.push_back(std::move(task));
    if (depth_ == 0) runEvent([] {});
  }

 private:
  // Keeps the depth right when a handler throws.
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
