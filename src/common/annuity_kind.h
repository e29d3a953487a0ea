#pragma once

namespace common {

/// The kinds of problems that the financial calculator solves, in the order in which it offers
/// them.
enum class AnnuityKind { Investment, Standard, Loan };

}  // namespace common
