#pragma once

#include <optional>
#include <string>
#include <vector>

#include "controls/desktop.h"

namespace driver {

/// A message box that was shown, and its answer.
struct SeenBox {
  std::string text;
  std::string title;
  std::string buttons;
  std::string icon;
  int answer = 0;
};

/// A program that was started; `keys` were sent to its window ("^V" is Ctrl+V).
struct Launch {
  std::string program;
  std::string keys;
  std::optional<std::string> text;
};

/// What the program has asked of the desktop.
struct Events {
  int beeps = 0;
  std::vector<SeenBox> boxes = {};
  std::vector<Launch> launches = {};
  std::vector<controls::HelpRequest> helpRequests = {};
};

}  // namespace driver
