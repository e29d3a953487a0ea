#pragma once

#include <windows.h>

#include <string_view>
#include <vector>

namespace support {

/// Keyboard and mouse input, in order.
using Inputs = std::vector<INPUT>;

void keyDown(Inputs& inputs, WORD key);
void keyUp(Inputs& inputs, WORD key);
/// Press and release.
void tap(Inputs& inputs, WORD key);
/// Keys of the keypad by their labels; 'E' is its Enter key.
Inputs keypad(std::string_view caps);

}  // namespace support
