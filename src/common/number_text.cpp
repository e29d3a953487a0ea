#include "common/number_text.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstdlib>

#include "common/run_time_error.h"

namespace common {
namespace {

constexpr int kSignificantDigits = 15;

// Far beyond what the digits of any text in memory could bring back into the range of a double.
constexpr long long kExponentLimit = 1'000'000'000'000'000;

// The parts of a number as written.
struct Written {
  char sign;  // '+', '-' or 0; of a minus behind and of parentheses '-'
  std::string_view integer;
  std::string_view fraction;
  bool hasPoint;
  bool hasExponent;
  long long exponent;
};

bool isBlank(char character) {
  return character == ' ' || character == '\t';
}

bool isDigitOrComma(char character) {
  return isDigit(character) || character == ',';
}

template <class Predicate>
std::string_view takeWhile(std::string_view& rest, Predicate predicate) {
  std::size_t length = 0;
  while (length < rest.size() && predicate(rest[length])) ++length;
  const std::string_view taken = rest.substr(0, length);
  rest.remove_prefix(length);
  return taken;
}

bool take(std::string_view& rest, char character) {
  if (rest.empty() || rest.front() != character) return false;
  rest.remove_prefix(1);
  return true;
}

char takeSign(std::string_view& rest) {
  if (take(rest, '-')) return '-';
  return take(rest, '+') ? '+' : char{0};
}

std::string_view trimmed(std::string_view text) {
  takeWhile(text, isBlank);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

// The sign and the "$", in either order.
void readFront(std::string_view& rest, Written& written) {
  written.sign = takeSign(rest);
  if (!take(rest, '$')) return;
  takeWhile(rest, isBlank);
  if (!written.sign) written.sign = takeSign(rest);
}

// False for an exponent without digits.
bool readExponent(std::string_view& rest, Written& written) {
  if (!take(rest, 'E') && !take(rest, 'e')) return true;
  written.hasExponent = true;
  const bool negative = takeSign(rest) == '-';
  const std::string_view digits = takeWhile(rest, isDigit);
  for (const char digit : digits) {
    if (written.exponent < kExponentLimit) {
      written.exponent = written.exponent * 10 + (digit - '0');
    }
  }
  if (negative) written.exponent = -written.exponent;
  return !digits.empty();
}

// False when there is no digit.
bool readDigits(std::string_view& rest, Written& written) {
  written.integer = takeWhile(rest, isDigitOrComma);
  written.hasPoint = take(rest, '.');
  if (written.hasPoint) written.fraction = takeWhile(rest, isDigit);
  if (!written.integer.empty())
    return written.integer.find_first_not_of(',') != std::string_view::npos;
  return !written.fraction.empty();
}

// False for a second sign, and for a parenthesis that is not closed.
bool readBack(std::string_view& rest, bool parentheses, Written& written) {
  if (parentheses) {
    if (written.sign || !take(rest, ')')) return false;
  } else if (written.sign || written.hasExponent || !take(rest, '-')) {
    return true;
  }
  written.sign = '-';
  return true;
}

// Null for a text that is not a number.
std::optional<Written> read(std::string_view text) {
  std::string_view rest = trimmed(text);
  Written written = {};
  const bool parentheses = take(rest, '(');
  readFront(rest, written);
  const bool isNumber = readDigits(rest, written) && readExponent(rest, written) &&
                        readBack(rest, parentheses, written) && rest.empty();
  if (!isNumber) return {};
  return written;
}

// Without commas and leading zeros, the exponent applied.
Decimal decimalOf(const Written& written) {
  Decimal decimal;
  std::string& digits = decimal.digits;
  for (const char character : written.integer) {
    if (character != ',') digits += character;
  }
  decimal.point = static_cast<long long>(digits.size()) + written.exponent;
  digits += written.fraction;
  const std::size_t zeros = std::min(digits.find_first_not_of('0'), digits.size());
  digits.erase(0, zeros);
  decimal.point -= static_cast<long long>(zeros);
  return decimal;
}

// Null when out of the range of a double.
std::optional<double> magnitudeOf(const Decimal& decimal) {
  const double magnitude = nearestDouble(decimal);
  if (std::isinf(magnitude)) return {};
  return magnitude;
}

std::optional<double> valueOf(const Written& written) {
  const auto magnitude = magnitudeOf(decimalOf(written));
  if (!magnitude) return {};
  return written.sign == '-' && *magnitude != 0 ? -*magnitude : *magnitude;
}

// Appends a number in fixed notation.
void appendFixed(std::string& text, const Decimal& number) {
  const auto& [digits, point] = number;
  if (point <= 0) {
    text += "0.";
    text.append(static_cast<std::size_t>(-point), '0');
    text += digits;
    return;
  }
  const auto inFront = static_cast<std::size_t>(point);
  text.append(digits, 0, inFront);
  if (inFront < digits.size()) {
    text += '.';
    text.append(digits, inFront);
  } else {
    text.append(inFront - digits.size(), '0');
  }
}

// Appends the same in scientific notation.
void appendScientific(std::string& text, const Decimal& number) {
  const auto& [digits, point] = number;
  text += digits.front();
  if (digits.size() > 1) {
    text += '.';
    text.append(digits, 1);
  }
  const long long exponent = point - 1;
  text += exponent < 0 ? "E-" : "E+";
  if (std::abs(exponent) < 10) text += '0';
  text += std::to_string(std::abs(exponent));
}

}  // namespace

std::optional<double> tryNumber(std::string_view text) {
  const auto written = read(text);
  return written ? valueOf(*written) : std::nullopt;
}

bool hasOddCommas(std::string_view text) {
  constexpr std::size_t kGroup = 3;
  const auto written = read(text);
  if (!written || written->integer.find(',') == std::string_view::npos) return false;
  std::string_view rest = written->integer;
  const std::size_t first = takeWhile(rest, isDigit).size();
  if (first == 0 || first > kGroup) return true;
  while (take(rest, ','))
    if (takeWhile(rest, isDigit).size() != kGroup) return true;
  return false;
}

double toNumber(std::string_view text) {
  const auto written = read(text);
  if (!written) throw RunTimeError(kTypeMismatch);
  const auto value = valueOf(*written);
  if (!value) throw RunTimeError(kOverflow);
  return *value;
}

Decimal toDigits(double value) {
  assert(std::isfinite(value));
  Decimal number = exactDecimal(value);
  if (number.digits.size() <= kSignificantDigits) return number;
  const bool isOdd = number.digits[kSignificantDigits - 1] % 2 != 0;
  const int toHalf = number.digits.compare(kSignificantDigits, std::string::npos, "5");
  cutDigits(number, kSignificantDigits, toHalf > 0 || (toHalf == 0 && isOdd));
  return number;
}

void cutDigits(Decimal& number, std::size_t count, bool up) {
  std::string& digits = number.digits;
  digits.resize(count);
  digits.erase(digits.find_last_not_of(up ? '9' : '0') + 1);
  if (!up) return;
  if (digits.empty()) {
    digits.assign(1, '1');
    ++number.point;
  } else {
    ++digits.back();
  }
}

std::string toText(double value) {
  const Decimal number = toDigits(value);
  if (number.digits.empty()) return "0";
  const long long digitsBehind = static_cast<long long>(number.digits.size()) - number.point;
  std::string text(value < 0 ? 1 : 0, '-');
  if (number.point <= kSignificantDigits && digitsBehind <= kSignificantDigits) {
    appendFixed(text, number);
  } else {
    appendScientific(text, number);
  }
  return text;
}

std::optional<std::string> toPlainText(std::string_view text) {
  const auto written = read(text);
  if (!written) return {};
  const Decimal decimal = decimalOf(*written);
  const auto magnitude = magnitudeOf(decimal);
  if (!magnitude) return {};
  std::string plain;
  if (written->sign) plain += written->sign;
  if (!written->hasExponent) {
    plain += written->integer.empty() ? "0" : written->integer;
    if (written->hasPoint) plain += '.';
    plain += written->fraction;
  } else if (*magnitude == 0) {
    // A number too small for a double could have more zeros than fit into memory.
    plain += '0';
  } else {
    appendFixed(plain, decimal);
  }
  return plain;
}

}  // namespace common
