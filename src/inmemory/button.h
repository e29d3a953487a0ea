#pragma once

#include <string>

#include "controls/buttons.h"

namespace inmemory {

/// A push button that records what it has confirmed last.
class Button : public controls::Button {
 public:
  using controls::Button::Button;

  void confirm(std::string_view text) override { confirmed = text; }

  std::string confirmed;
};

}  // namespace inmemory
