#pragma once

#include "controls/layout.h"

namespace shell {

/// The main window as it is designed: its controls, their places in twips, and its menu.
const controls::WindowLayout& frmCalcLayout();

}  // namespace shell
