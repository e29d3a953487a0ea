#include "annuity/allow_key.h"

#include <algorithm>
#include <array>

#include "common/number_text.h"

namespace annuity {
namespace {

constexpr auto kAlwaysAllowed = std::to_array<controls::KeyAscii>(
    {',', controls::kKeyEnter, controls::kKeyBackspace, controls::kCtrlC, controls::kCtrlV,
     controls::kCtrlX, controls::kCtrlZ});

bool isAllowed(controls::KeyAscii key, std::string_view text) {
  if (key == '-' || key == '.') return text.find(static_cast<char>(key)) == std::string_view::npos;
  return common::isDigit(key) || std::ranges::find(kAlwaysAllowed, key) != kAlwaysAllowed.end();
}

}  // namespace

bool allowKey(controls::KeyAscii key, std::string_view text, controls::Desktop& desktop) {
  const bool allowed = isAllowed(key, text);
  if (!allowed) desktop.beep();
  return allowed;
}

}  // namespace annuity
