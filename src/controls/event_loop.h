#pragma once

#include <deque>
#include <functional>
#include <utility>

namespace controls {

/// Thrown to end a handler that waits for a dialog when the owner of the dialog is closed.
struct DialogDismissed {};

/// The order of the program's events. An event is an input from outside: a key, a click, a message
/// from the system. Tasks that its handlers post run when the outermost event has ended, in the
/// order in which they were posted. While a handler waits, events end as if it were not there.
class EventLoop {
 public:
  /// Runs one event and, if it is the outermost, everything posted meanwhile.
  template <class Body>
  void runEvent(Body&& body) {
    runHandler(body);
    while (const auto task = nextTask()) runHandler(task);
  }

  /// Queues a task for the end of the current event. Outside an event it runs at once.
  void post(std::function<void()> task) {
    tasks_.push_back(std::move(task));
    if (depth_ == waiting_) runEvent([] {});
  }
  /// Queues a task for when no handler runs any more, not even one that waits.
  void postLast(std::function<void()> task) {
    lastTasks_.push_back(std::move(task));
    if (depth_ == 0) runEvent([] {});
  }

  /// Takes in events, in `body`, while the current handler waits for something.
  template <class Body>
  void takeWhileWaiting(Body&& body) {
    const Count waiting(waiting_, depth_);
    body();
  }

 private:
  // Restores the count when a handler throws.
  class Count {
   public:
    Count(int& count, int value) : count_(count), before_(std::exchange(count, value)) {}
    ~Count() { count_ = before_; }
    Count(const Count&) = delete;
    Count& operator=(const Count&) = delete;

   private:
    int& count_;
    int before_;
  };

  using Task = std::function<void()>;

  /// Null when none is due.
  Task nextTask() {
    if (depth_ == waiting_ && !tasks_.empty()) return takeFirst(tasks_);
    if (depth_ == 0 && !lastTasks_.empty()) return takeFirst(lastTasks_);
    return nullptr;
  }

  static Task takeFirst(std::deque<Task>& tasks) {
    Task first = std::move(tasks.front());
    tasks.pop_front();
    return first;
  }

  template <class Handler>
  void runHandler(const Handler& handler) {
    const Count depth(depth_, depth_ + 1);
    try {
      handler();
    } catch (const DialogDismissed&) {
    }
  }

  // How many handlers run, and how many did when the one that waits began to.
  int depth_ = 0;
  int waiting_ = 0;
  std::deque<Task> tasks_;
  std::deque<Task> lastTasks_;
};

}  // namespace controls
