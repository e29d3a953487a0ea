#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace annuity {

/// One entry of the record: caption and value.
struct TapeEntry {
  std::string caption;
  std::string value;
};

/// The values as printed in the record, with a trailing blank. A text that is not a number is
/// printed unchanged.
std::string termOnTape(std::string_view text, bool inMonths);
/// The pattern has a percent sign, so that 8.5 is printed as "% 850.00 ".
std::string rateOnTape(std::string_view text);
std::string moneyOnTape(std::string_view text);
std::string answerOnTape(std::string_view text);

/// The record of a problem and its answer, to be appended to the tape: a header, then for each
/// field and the answer the right-aligned caption and the left-aligned value, in lines of 26
/// characters.
std::string tapeRecord(const std::vector<TapeEntry>& fields, const TapeEntry& answer);

}  // namespace annuity
