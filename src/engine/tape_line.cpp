#include "engine/tape_line.h"

namespace engine {

std::string tapeHeader(bool padded) {
  return padded ? "Top" + std::string(kTapeWidth - 6, ' ') + "Top" : "Top";
}

std::string tapeLine(std::string_view amount, std::string_view symbol, bool padded, bool floating) {
  std::string line(amount);
  line.append(" ").append(symbol).append(" ");
  if (!padded) return line;
  if (floating) line.insert(0, 1, ' ');
  if (line.size() < kTapeWidth) line.insert(0, kTapeWidth - line.size(), ' ');
  return line;
}

std::string tapeSeparator(bool padded) {
  return padded ? std::string(kTapeWidth, ' ') : "";
}

}  // namespace engine
