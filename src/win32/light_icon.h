#pragma once

#include <windows.h>

#include "win32/handles.h"

namespace win32 {

/// A version of an icon for dark backgrounds, with light lines instead of dark ones. An icon
/// without 32-bit colors is copied unchanged.
OwnedIcon lightened(HICON icon);

}  // namespace win32
