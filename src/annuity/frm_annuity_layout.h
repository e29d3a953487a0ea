#pragma once

#include "controls/layout.h"

namespace annuity {

/// The financial calculator as it is designed: its controls and their places in twips. What differs
/// from one configuration to the other is empty here.
const controls::WindowLayout& frmAnnuityLayout();

}  // namespace annuity
