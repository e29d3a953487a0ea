#pragma once

#include <windows.h>

namespace win32 {

/// The part of a monitor that windows may cover: all but the taskbar.
RECT workAreaOf(HMONITOR monitor);
/// The corner of a window, moved as little as brings the window into the area. One that is too
/// large begins at the area's left or upper edge.
POINT cornerWithin(const RECT& area, const RECT& window);

}  // namespace win32
