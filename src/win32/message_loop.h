#pragma once

namespace win32 {

class Desktop;

/// Gives the program what the user does, until endMessageLoop.
void runMessageLoop(Desktop& desktop);
void endMessageLoop();

/// Gives the program what is waiting for it now. False when the loop has been told to end.
bool dispatchWaiting(Desktop& desktop);

}  // namespace win32
