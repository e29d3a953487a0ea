#include "driver/command.h"

namespace driver {

namespace {

// The length of the leading JSON text, including its quotes; 0 without a closing quote.
std::size_t quotedLength(std::string_view text) {
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (text[i] == '\\') {
      ++i;
    } else if (text[i] == '"') {
      return i + 1;
    }
  }
  return 0;
}

}  // namespace

void Command::skipBlanks() {
  rest_.remove_prefix(std::min(rest_.find_first_not_of(" \t\r"), rest_.size()));
}

bool Command::atEnd() {
  skipBlanks();
  return rest_.empty();
}

std::string Command::word() {
  if (atEnd()) throw CommandError("a word is missing");
  const std::string word(rest_.substr(0, rest_.find_first_of(" \t\r")));
  rest_.remove_prefix(word.size());
  return word;
}

Json Command::value() {
  if (atEnd()) throw CommandError("a value is missing");
  std::string literal;
  if (rest_.front() == '"') {
    literal = rest_.substr(0, quotedLength(rest_));
    rest_.remove_prefix(literal.size());
    if (literal.empty()) throw CommandError("a text has no closing quote");
  } else {
    literal = word();
  }
  Json value = Json::parse(literal, nullptr, false);
  if (value.is_discarded()) throw CommandError("not a JSON value: " + literal);
  return value;
}

std::string Command::text() {
  const Json value = this->value();
  if (!value.is_string()) throw CommandError("a text is wanted, in quotes");
  return value.get<std::string>();
}

int Command::number() {
  const Json value = this->value();
  if (!value.is_number_integer()) throw CommandError("a whole number is wanted");
  return value.get<int>();
}

void Command::end() {
  if (!atEnd()) throw CommandError("too many words");
}

}  // namespace driver
