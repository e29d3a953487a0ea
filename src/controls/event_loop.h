#pragma once

#include <cassert>
#include <deque>
#include <functional>
#include <utility>

namespace controls {

/// The order of the program's events. A handler runs to its end; what it posted runs when the
/// outermost event has ended, in the order in which it was posted.
class EventLoop {
 public:
  /// Runs one event and, when it was the outermost, everything posted meanwhile.
  template <class Body>
  void runEvent(Body&& body) {
    {
      Depth depth(depth_);
      body();
    }
    while (depth_ == 0 && !tasks_.empty()) {
      auto task = std::move(tasks_.front());
      tasks_.pop_front();
      Depth depth(depth_);
      task();
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

  int depth_ = 0;
  std::deque<std::function<void()>> tasks_;
};

}  // namespace controls
