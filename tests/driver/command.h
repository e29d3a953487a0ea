#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "driver/json.h"

namespace driver {

/// A command that cannot be carried out; the driver answers with the message.
class CommandError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Reads a line of the driver's input word by word. Each function takes the next word, and throws
/// CommandError if it is not of that kind.
class Command {
 public:
  explicit Command(std::string_view line) : rest_(line) {}

  bool atEnd();
  /// Characters up to the next blank.
  std::string word();
  /// A JSON value: a text with its quotes, a number.
  Json value();
  std::string text();
  int number();
  /// Throws CommandError if words are left.
  void end();

 private:
  void skipBlanks();

  std::string_view rest_;
};

}  // namespace driver
