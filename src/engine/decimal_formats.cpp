#include "engine/decimal_formats.h"

#include <algorithm>
#include <array>

#include "common/number_pattern.h"
#include "common/number_text.h"

namespace engine {

using common::formatText;
using common::kWholePattern;

namespace {

constexpr std::string_view kSmallNumberPattern = "###.00000000000000";
constexpr std::array kScale = {1.0, 0.1, 0.01, 1e-3, 1e-4, 1e-5, 1e-6, 1e-7, 1e-8, 1e-9};

bool hasDigit(std::string_view text) {
  return text.find_first_of("0123456789") != std::string_view::npos;
}

// A minus before zeros is kept as the sign of the digits to come.
std::string keepSign(std::string_view typed, std::string formatted) {
  if (typed.starts_with('-') && common::tryNumber(typed) == 0.0) formatted.insert(0, 1, '-');
  return formatted;
}

std::string groupWhole(std::string_view text) {
  return keepSign(text, formatText(text, kWholePattern));
}

int trailingZeros(std::string_view digits) {
  return static_cast<int>(digits.size() - digits.find_last_not_of('0')) - 1;
}

}  // namespace

std::string decimalsPattern(int places) {
  const std::string whole(kWholePattern);
  return places > 0 ? whole + '.' + std::string(static_cast<std::size_t>(places), '0') : whole;
}

std::string formatFloating(std::string_view text) {
  const auto point = text.find('.');
  if (point == std::string_view::npos) return groupWhole(text);
  const std::string_view whole = text.substr(0, point);
  const bool small = !hasDigit(whole) || common::toNumber(whole) < 1000;
  std::string formatted = groupWhole(whole) + std::string(text.substr(point));
  // Exponent notation of a small number is written out.
  if (formatted.find('E') == std::string::npos || !small) return formatted;
  return formatText(formatted, kSmallNumberPattern);
}

std::string formatKeyed(std::string_view text, int places) {
  const auto point = text.find('.');
  if (point == std::string_view::npos) return groupWhole(text);
  const int typed = static_cast<int>(text.size() - point) - 1;
  const std::string pattern =
      typed == 0 ? decimalsPattern(0) + "." : decimalsPattern(std::min(typed, places));
  return keepSign(text, formatText(text, pattern));
}

std::string formatStationary(std::string_view text, int places) {
  if (!hasDigit(text)) return std::string(text);
  std::string digits(text);
  const auto point = digits.find('.');
  if (point != std::string::npos && point > 0) digits.erase(point, 1);
  const double value = common::toNumber(digits);
  // Scaling loses trailing zeros; they are appended again.
  const int zeros = value == 0 ? 0 : trailingZeros(digits);
  const std::string scaled = common::toText(value * kScale.at(static_cast<std::size_t>(places)));
  std::string shown = keepSign(digits, formatKeyed(scaled, places));
  if (zeros == 0 || places == 0) return shown;
  if (shown.find('.') != std::string::npos)
    return shown + std::string(static_cast<std::size_t>(zeros), '0');
  return shown + "." + std::string(static_cast<std::size_t>(std::min(zeros, places)), '0');
}

std::string formatValue(std::string_view text, int places) {
  return keepSign(text, formatText(text, decimalsPattern(places)));
}

}  // namespace engine
