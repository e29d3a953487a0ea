#pragma once

#include "controls/desktop.h"

namespace win32 {

/// From the version information of the running program; empty without it.
controls::VersionNotes readVersionNotes();

}  // namespace win32
