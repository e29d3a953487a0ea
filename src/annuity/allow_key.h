#pragma once

#include <string_view>

#include "controls/desktop.h"
#include "controls/keys.h"

namespace annuity {

/// The key filter of the numeric fields: whether the character may be typed into a field that holds
/// `text` (without the selection that the character will replace). The kind "fraction" accepts a
/// point. A refused character beeps; discarding it is the caller's matter.
bool allowKey(controls::KeyAscii key, std::string_view kind, std::string_view text,
              controls::Desktop& desktop);

}  // namespace annuity
