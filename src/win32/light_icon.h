#pragma once

#include <windows.h>

#include "win32/handles.h"

namespace win32 {

/// The same picture for a dark background: its dark lines are light. Without a picture of 32 bits
/// it is a copy.
OwnedIcon lightened(HICON icon);

}  // namespace win32
