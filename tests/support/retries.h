#pragma once

namespace support {

/// Counts a retry, after the desktop has lost the first attempt.
void noteRetry(const char* what);

/// Prints the number of retries; false if there were too many.
bool retriesAreFew();

}  // namespace support
