#pragma once

#include "controls/layout.h"

namespace annuity {

/// The design of the financial calculator: its controls and their positions in twips. Texts that
/// depend on the configuration are empty.
const controls::WindowLayout& frmAnnuityLayout();

}  // namespace annuity
