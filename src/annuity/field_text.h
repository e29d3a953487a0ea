#pragma once

#include <string>
#include <string_view>

namespace annuity {

/// An amount being typed: the integer part grouped by thousands, the point and the decimals exactly
/// as typed. The sign is kept, even before zeros or a lone point. Text that is not a number is
/// returned unchanged.
std::string groupThousands(std::string_view text);

}  // namespace annuity
