#pragma once

#include "controls/layout.h"

namespace shell {

/// The size of the micro window, in twips.
inline constexpr controls::Twips kMicroWidth = 2280;
inline constexpr controls::Twips kMicroHeight = 1095;

/// The design of the main window: its controls, their positions in twips, and its menu.
const controls::WindowLayout& frmCalcLayout();

}  // namespace shell
