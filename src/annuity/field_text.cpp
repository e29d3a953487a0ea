#include "annuity/field_text.h"

#include <algorithm>

#include "common/number_pattern.h"

namespace annuity {

std::string groupThousands(std::string_view text) {
  const auto point = std::min(text.find('.'), text.size());
  const std::string_view whole = text.substr(0, point);
  std::string grouped = common::formatText(whole, common::kWholePattern);
  // The sign before zeros belongs to digits still to be typed.
  if (whole.starts_with('-') && !grouped.starts_with('-')) grouped.insert(0, "-");
  return grouped + std::string(text.substr(point));
}

}  // namespace annuity
