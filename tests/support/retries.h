#pragma once

namespace support {

/// Notes that something was done again, since the desktop had not taken it the first time.
void noteRetry(const char* what);

/// Prints how often that was; false when it was oftener than a desktop's nature explains.
bool retriesAreFew();

/// Whether this is Wine, where closing a window may leave the keys with nobody. There alone a test
/// may bring the program to the front itself.
bool isWine();

}  // namespace support
