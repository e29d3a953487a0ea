#pragma once

#include <string_view>

#include "controls/desktop.h"
#include "controls/keys.h"

namespace annuity {

/// The key filter of the numeric fields: whether the character may be typed into a field with this
/// text (without the selection, which the character will replace). Beeps for a refused character;
/// the caller discards it.
bool allowKey(controls::KeyAscii key, std::string_view text, controls::Desktop& desktop);

}  // namespace annuity
