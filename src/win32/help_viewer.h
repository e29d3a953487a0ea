#pragma once

#include <windows.h>

#include <string>

#include "controls/desktop.h"

namespace win32 {

/// Opens the help in the system's help viewer, or as a page in the browser. False if neither works.
bool openHelp(const controls::HelpRequest& request, HWND owner);

/// The message for help that cannot be opened.
std::string whereHelpIs(const std::string& file);

}  // namespace win32
