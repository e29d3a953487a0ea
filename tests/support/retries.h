#pragma once

namespace support {

/// Counts a retry, after the desktop has lost the first attempt.
void noteRetry(const char* what);

/// Prints the number of retries; false if there were too many.
bool retriesAreFew();

/// Whether this is Wine, where closing a window may leave no window with the keyboard. Only there
/// may a test bring the program to the front itself.
bool isWine();

}  // namespace support
