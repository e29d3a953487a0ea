#pragma once

#include <windows.h>

namespace win32 {

/// A function of one of the system's libraries that only a dialog needs: the library is loaded when
/// the function is first asked for, and does not delay every start. Nothing when the system lacks
/// it.
template <class Function>
Function lateFunction(const wchar_t* library, const char* name) {
  const HMODULE module = LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  if (!module) return nullptr;
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

}  // namespace win32
