#include "annuity/tape_record.h"

#include <algorithm>

#include "common/number_pattern.h"
#include "common/unicode.h"

namespace annuity {
namespace {

constexpr std::size_t kColumns = 26;
constexpr std::string_view kLineBreak = "\r\n";

std::string blanksBeside(std::string_view text) {
  const std::size_t characters = common::toUtf16(text).size();
  return std::string(kColumns - std::min(characters, kColumns), ' ');
}

std::string captionLine(std::string caption) {
  if (const auto ampersand = caption.find('&'); ampersand != std::string::npos)
    caption.erase(ampersand, 1);
  if (const auto equals = caption.find("equals:"); equals != std::string::npos)
    caption.replace(equals, std::string::npos, " =");
  return blanksBeside(caption) + caption;
}

std::string entryLines(const TapeEntry& entry) {
  std::string lines(kLineBreak);
  lines += captionLine(entry.caption);
  lines += kLineBreak;
  lines += entry.value + blanksBeside(entry.value);
  return lines;
}

}  // namespace

std::string termOnTape(std::string_view text, bool inMonths) {
  return std::string(text) + (inMonths ? " Months " : " Years ");
}

std::string rateOnTape(std::string_view text) {
  return common::formatText(text, "% ###.00##") + " ";
}

std::string moneyOnTape(std::string_view text) {
  return common::formatText(text, "$ ###,###,###,##0.00 ");
}

std::string answerOnTape(std::string_view text) {
  return std::string(text) + " ";
}

std::string tapeRecord(const std::vector<TapeEntry>& fields, const TapeEntry& answer) {
  std::string record(kLineBreak);
  record += "Annuity Calculation:      ";
  for (const TapeEntry& field : fields) record += entryLines(field);
  record += entryLines(answer);
  record += kLineBreak;
  return record;
}

}  // namespace annuity
