#pragma once

#include <windows.h>

#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

#include "driver/events.h"

namespace driver {

/// Operates the system dialogs of the program as a user does: reads a message box and presses a
/// button, or picks a color.
class NativeBoxes {
 public:
  /// A request to be made while the next dialog is open, before it is answered.
  void queueRequest(std::function<void()> request) { requests_.push_back(std::move(request)); }
  void queueAnswer(int answer) { answers_.push_back(answer); }
  /// Null cancels the color picker.
  void queueColor(const std::optional<std::uint32_t>& color) { colors_.push_back(color); }

  /// Answers the dialog that is open or about to open, and returns when it has closed. False
  /// without one.
  bool attend();
  /// Called on the program's thread: the answer of the last box as the program received it.
  void noteAnswer(int answer);
  std::vector<SeenBox> takeSeen();

 private:
  void readBox(HWND dialog);
  void answerBox(HWND dialog);
  void pickColor(HWND dialog);

  std::deque<std::function<void()>> requests_;
  std::deque<int> answers_;
  std::deque<std::optional<std::uint32_t>> colors_;
  std::mutex mutex_;
  std::vector<SeenBox> seen_;
};

}  // namespace driver
