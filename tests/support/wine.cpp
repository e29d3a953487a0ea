#include "support/wine.h"

#include <windows.h>

namespace support {

bool isWine() {
  return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

}  // namespace support
