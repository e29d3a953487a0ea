#pragma once

#include <windows.h>

#include <string_view>
#include <vector>

namespace support {

/// What the keyboard and the mouse send, in order.
using Inputs = std::vector<INPUT>;

void keyDown(Inputs& inputs, WORD key);
void keyUp(Inputs& inputs, WORD key);
/// Down and up again.
void tap(Inputs& inputs, WORD key);
/// Keys of the keypad by what their caps show; 'E' is its Enter key.
Inputs keypad(std::string_view caps);

}  // namespace support
