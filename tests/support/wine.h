#pragma once

namespace support {

/// Whether this is Wine, where closing a window may leave no window with the keyboard. Only there
/// may a test bring the program to the front itself, or replace a program of the system.
bool isWine();

}  // namespace support
