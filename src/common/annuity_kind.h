#pragma once

namespace common {

/// The problems that the financial calculator is made for, in the order in which it offers them.
enum class AnnuityKind { Investment, Standard, Loan };

}  // namespace common
