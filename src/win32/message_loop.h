#pragma once

namespace win32 {

class Desktop;

/// Dispatches messages until endMessageLoop.
void runMessageLoop(Desktop& desktop);
void endMessageLoop();

/// Dispatches the waiting messages. False if the loop has been told to end.
bool dispatchWaiting(Desktop& desktop);

}  // namespace win32
