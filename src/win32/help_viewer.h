#pragma once

#include <windows.h>

#include <string>

#include "controls/desktop.h"

namespace win32 {

/// Opens the help in the viewer that the system has for it, or as a page in the browser. False when
/// neither can be had.
bool openHelp(const controls::HelpRequest& request, HWND owner);

/// What the user is told when it cannot be opened.
std::string whereHelpIs(const std::string& file);

}  // namespace win32
