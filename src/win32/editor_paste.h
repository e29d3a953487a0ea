#pragma once

#include <functional>
#include <string>

namespace win32 {

/// Starts Notepad or a relative of it, waits for its window, opens a new document there and pastes
/// the clipboard into it. False when any of this fails, and where it is not sure that an empty
/// document would take the text: nothing has been pasted then. `work` runs again and again while it
/// waits, and lets the program take what has arrived for it.
bool startProgramAndPaste(const std::string& program, const std::function<void()>& work);

}  // namespace win32
