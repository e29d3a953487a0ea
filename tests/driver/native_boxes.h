#pragma once

#include <windows.h>

#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace driver {

/// A message box as it was on the screen, and its answer.
struct SeenBox {
  std::string text;
  std::string title;
  std::string buttons;
  std::string icon;
  int answer = 0;
};

/// The person's hands on the dialogs that the system shows for the program: they read a message box
/// and press one of its buttons, and pick a colour.
class NativeBoxes {
 public:
  /// What happens while the next dialog stands open, before it is answered.
  void queueRequest(std::function<void()> request) { requests_.push_back(std::move(request)); }
  void queueAnswer(int answer) { answers_.push_back(answer); }
  /// Nothing cancels the colour picker.
  void queueColor(const std::optional<std::uint32_t>& color) { colors_.push_back(color); }

  /// Deals with the dialog that is open or is about to open, and returns when it has gone. False
  /// without one.
  bool attend();
  /// The program's thread: what the program took the last box's answer for.
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
