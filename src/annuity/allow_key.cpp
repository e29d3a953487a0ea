#include "annuity/allow_key.h"

#include <algorithm>
#include <array>

#include "common/number_text.h"

namespace annuity {
namespace {

// Comma, and the characters of Ctrl+C, Ctrl+V, Ctrl+X and Ctrl+Z.
constexpr std::array kAlwaysAllowed = {controls::KeyAscii{','}, 3, 22, 24, 26};

bool isAllowed(controls::KeyAscii key, std::string_view kind, std::string_view text) {
  if (key == controls::kKeyEnter || key == controls::kKeyBackspace) return true;
  if (key == '-') return text.find('-') == std::string_view::npos;
  if (key == '.' && kind == "fraction") return text.find('.') == std::string_view::npos;
  if (std::ranges::find(kAlwaysAllowed, key) != kAlwaysAllowed.end()) return true;
  return common::isDigit(key);
}

}  // namespace

bool allowKey(controls::KeyAscii key, std::string_view kind, std::string_view text,
              controls::Desktop& desktop) {
  const bool allowed = isAllowed(key, kind, text);
  if (!allowed) desktop.beep();
  return allowed;
}

}  // namespace annuity
