#pragma once

namespace support {

/// Counts an action of the user: a key, a click, a request to a window.
void noteAction();

/// Counts a retry, after the desktop has lost the first attempt.
void noteRetry(const char* what);

/// The number of retries that is acceptable in a run of so many actions.
int mostRetries(int actions);

/// Prints the number of retries; false if there were too many.
bool retriesAreFew();

}  // namespace support
