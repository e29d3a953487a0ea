#pragma once

#include <optional>
#include <string_view>

namespace fuzz {

/// An amount in units of a thousand-billionth, exactly: what the tape says, added as by hand. It
/// shares no code with the product.
__extension__ using ExactAmount = __int128;

/// The amount that a text says as plain digits, with or without separators; nothing for another
/// text, and for one of more than 15 digits in front of the point or behind it.
std::optional<ExactAmount> exactAmount(std::string_view text);
/// Whether it has no more than 15 digits and that many decimals, so that it can be shown whole.
bool isShownWhole(ExactAmount amount, int places);

}  // namespace fuzz
