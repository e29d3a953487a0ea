#pragma once

#include "controls/desktop.h"

namespace win32 {

/// From the version information of the program that runs; empty where it has none.
controls::VersionNotes readVersionNotes();

}  // namespace win32
