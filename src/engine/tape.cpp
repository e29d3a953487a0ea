#include "engine/tape.h"

namespace engine {

void Tape::print(const TapeLine& line) {
  const TapeForm form = {
      .padded = padded_.checked(), .floating = decimals_.floating(), .places = decimals_.places()};
  std::string lines = "\r\n" + tapeText(line, form);
  if (line.mark == Mark::Total) lines += "\r\n" + tapeSeparator(form.padded);
  append(lines);
}

void Tape::printFailure(std::string_view reason) {
  append("\r\nError:" + std::string(reason) + "\r\n");
}

void Tape::clear() {
  paper_.setText(tapeHeader(padded_.checked()));
}

void Tape::append(const std::string& lines) {
  if (off_.value() == 0) paper_.append(lines);
}

}  // namespace engine
