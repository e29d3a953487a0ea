#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace annuity {

/// One entry of the record: the caption that names it, and its value.
struct TapeEntry {
  std::string caption;
  std::string value;
};

/// The values as the record shows them, with a blank behind them. A text that is not a number
/// stands as it is.
std::string termOnTape(std::string_view text, bool inMonths);
/// The pattern has a percent sign, so that a field that holds 8.5 reads "% 850.00 ".
std::string rateOnTape(std::string_view text);
std::string moneyOnTape(std::string_view text);
std::string answerOnTape(std::string_view text);

/// The record of a problem and its answer, to be put behind the text of the tape: a header, then of
/// each field and of the answer its caption, right-aligned, and its value, left-aligned, in lines
/// of 26 characters.
std::string tapeRecord(const std::vector<TapeEntry>& fields, const TapeEntry& answer);

}  // namespace annuity
