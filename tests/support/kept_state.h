#pragma once

#include <windows.h>

#include <string>

namespace support {

/// What the tests change of the system is recorded before, in the user's registry, where the record
/// outlives a test that is killed.

/// Records the clipboard. Throws NotSeen while another program keeps it locked.
void keepDesktop();
/// Records a color of the system, unless it is recorded already.
void keepSystemColor(int index);
/// Records a value of the registry, or that there is none, unless that is recorded already. A key
/// that does not exist yet will not exist afterwards either.
void keepRegistryValue(HKEY root, const std::wstring& key, const std::wstring& name);

/// These put back what is recorded, and forget the record. Without one they do nothing. An
/// exception says what cannot be put back now; its record is kept. With the clipboard, keys that a
/// test was holding down are released.
void putBackDesktop();
void putBackSystemColors();
void putBackRegistryValues();
void putBackEverything();

/// Whether anything is recorded.
bool isAnythingKept();

/// Changes a system color until the end of the test.
class OtherSystemColor {
 public:
  OtherSystemColor(int index, COLORREF color) {
    keepSystemColor(index);
    SetSysColors(1, &index, &color);
  }
  ~OtherSystemColor() { putBackSystemColors(); }
  OtherSystemColor(const OtherSystemColor&) = delete;
  OtherSystemColor& operator=(const OtherSystemColor&) = delete;
};

}  // namespace support
