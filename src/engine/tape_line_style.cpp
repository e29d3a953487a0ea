#include "engine/tape_line_style.h"

#include <algorithm>
#include <optional>

#include "common/number_text.h"

namespace engine {

using controls::LineStyle;

namespace {

constexpr std::string_view kSymbols = "+-X/S* ";

// An amount as the tape prints it; one with a currency sign belongs to a record.
bool isAmount(std::string_view text) {
  const bool plain = text.find_first_not_of("-0123456789,.E+") == std::string_view::npos;
  return plain && common::tryNumber(text).has_value();
}

struct Posting {
  std::string_view amount;
  char symbol;
};

// The amount and the symbol of a line that has both.
std::optional<Posting> postingOf(std::string_view line) {
  line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
  const std::size_t end = line.find(' ');
  if (end == std::string_view::npos || end + 1 >= line.size()) return {};
  const Posting posting = {line.substr(0, end), line[end + 1]};
  const bool alone = end + 2 == line.size() || line[end + 2] == ' ';
  if (!alone || kSymbols.find(posting.symbol) == std::string_view::npos) return {};
  if (!isAmount(posting.amount)) return {};
  return posting;
}

std::string_view wordFor(char symbol) {
  switch (symbol) {
    case '+':
      return " plus";
    case '-':
      return " minus";
    case 'X':
      return " times";
    case '/':
      return " divided by";
    case 'S':
      return " square root";
    default:
      return "";
  }
}

}  // namespace

LineStyle tapeLineStyle(std::string_view line) {
  const auto posting = postingOf(line);
  if (!posting) return LineStyle::Note;
  const bool negative = posting->amount.front() == '-';
  if (posting->symbol == '*') return negative ? LineStyle::NegativeTotal : LineStyle::Total;
  // A negative amount that is subtracted adds.
  return negative != (posting->symbol == '-') ? LineStyle::TakenOff : LineStyle::Amount;
}

std::string spokenTapeLine(std::string_view line) {
  if (line.starts_with("Error:")) return std::string(line);
  const auto posting = postingOf(line);
  if (!posting) return "";
  const std::string amount(posting->amount);
  return posting->symbol == '*' ? "total " + amount
                                : amount + std::string(wordFor(posting->symbol));
}

}  // namespace engine
