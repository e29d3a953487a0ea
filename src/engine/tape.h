#pragma once

#include <string>
#include <string_view>

#include "controls/buttons.h"
#include "controls/menu.h"
#include "controls/text_box.h"
#include "engine/decimals.h"
#include "engine/tape_line.h"

namespace engine {

/// The paper tape. Nothing is printed while it is switched off.
class Tape {
 public:
  Tape(controls::TextBox& paper, const controls::MenuItem& padded,
       const controls::ToggleButton& off, const Decimals& decimals)
      : paper_(paper), padded_(padded), off_(off), decimals_(decimals) {}

  /// Prints a line; a total is followed by a separating line.
  void print(const TapeLine& line);
  /// Prints why a calculation could not continue.
  void printFailure(std::string_view reason);
  /// Clears the tape except for its header.
  void clear();

 private:
  void append(const std::string& lines);

  controls::TextBox& paper_;
  const controls::MenuItem& padded_;
  const controls::ToggleButton& off_;
  const Decimals& decimals_;
};

}  // namespace engine
