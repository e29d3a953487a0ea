#pragma once

#include "support/registry_key.h"

namespace support {

/// Writes what is on the clipboard into a key, in order; but not what only the program that has
/// copied it can draw. Throws NotSeen while another program keeps the clipboard locked.
void writeClipboardTo(const RegistryKey& key);
/// Puts that back on the clipboard, in place of what is there.
void readClipboardFrom(const RegistryKey& key);

}  // namespace support
