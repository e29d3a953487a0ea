#include "engine/tape_line.h"

#include <algorithm>
#include <array>

#include "common/number_pattern.h"
#include "engine/decimal_formats.h"

namespace engine {

namespace {

// In the order of the marks.
constexpr std::array kMarkCharacters = {' ', '+', '-', 'X', '/', 'S', '*'};

}  // namespace

std::string tapeHeader(bool padded) {
  return padded ? "Top" + std::string(kTapeWidth - 6, ' ') + "Top" : "Top";
}

std::string tapeText(const TapeLine& line, const TapeForm& form) {
  const std::string& keyed = line.amount.text;
  std::string text =
      form.floating ? keyed : common::formatText(keyed, decimalsPattern(form.places));
  text += {' ', kMarkCharacters.at(static_cast<std::size_t>(line.mark)), ' '};
  if (!form.padded) return text;
  if (form.floating) text.insert(0, 1, ' ');
  const std::size_t width = kTapeWidth;
  text.insert(0, width - std::min(text.size(), width), ' ');
  return text;
}

std::string tapeSeparator(bool padded) {
  return padded ? std::string(kTapeWidth, ' ') : "";
}

}  // namespace engine
