#pragma once

#include "controls/layout.h"

namespace shell {

/// The size of the micro window, in twips.
inline constexpr controls::Twips kMicroWidth = 2280;
inline constexpr controls::Twips kMicroHeight = 1095;

/// The main window as it is designed: its controls, their places in twips, and its menu.
const controls::WindowLayout& frmCalcLayout();

}  // namespace shell
