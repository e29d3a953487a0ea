#pragma once

#include <windows.h>

#include <string_view>
#include <vector>

namespace support {

/// Keyboard and mouse input, in order.
using Inputs = std::vector<INPUT>;

/// A key with KEYEVENTF_... flags, and the mouse with MOUSEEVENTF_... flags.
INPUT keyInput(WORD key, DWORD flags);
INPUT mouseInput(DWORD flags);
void send(Inputs inputs);

void keyDown(Inputs& inputs, WORD key);
void keyUp(Inputs& inputs, WORD key);
/// Press and release.
void tap(Inputs& inputs, WORD key);
/// Keys of the keypad by their labels; 'E' is its Enter key.
Inputs keypad(std::string_view caps);

}  // namespace support
