#pragma once

#include <string>
#include <string_view>

namespace annuity {

/// An amount being typed: its integer part grouped by thousands, its point and its decimals exactly
/// as they are. A sign stays in front, also of zeros and of a lone point; what is no number comes
/// back as it is.
std::string groupThousands(std::string_view text);

}  // namespace annuity
