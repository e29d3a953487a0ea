#include "fuzz/exact_amount.h"

namespace fuzz {

namespace {

constexpr int kDigitsBehindPoint = 15;
constexpr int kDigitsInFront = 15;
constexpr int kShownDigits = 15;

}  // namespace

std::optional<ExactAmount> exactAmount(std::string_view text) {
  const bool negative = text.starts_with('-');
  if (negative) text.remove_prefix(1);
  ExactAmount amount = 0;
  int inFront = 0;
  int behind = -1;
  for (const char c : text) {
    if (c == ',' && behind < 0) continue;
    if (c == '.' && behind < 0) {
      behind = 0;
      continue;
    }
    if (c < '0' || c > '9') return {};
    amount = amount * 10 + (c - '0');
    ++(behind < 0 ? inFront : behind);
    if (inFront > kDigitsInFront || behind > kDigitsBehindPoint) return {};
  }
  if (inFront == 0 && behind <= 0) return {};
  for (int i = behind < 0 ? 0 : behind; i < kDigitsBehindPoint; ++i) amount *= 10;
  return negative ? -amount : amount;
}

bool isShownWhole(ExactAmount amount, int places) {
  if (amount < 0) amount = -amount;
  int behind = kDigitsBehindPoint;
  for (; behind > 0 && amount % 10 == 0; amount /= 10) --behind;
  while (amount != 0 && amount % 10 == 0) amount /= 10;
  int digits = 0;
  for (; amount != 0; amount /= 10) ++digits;
  return behind <= places && digits <= kShownDigits;
}

}  // namespace fuzz
