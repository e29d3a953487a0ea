#pragma once

#include <windows.h>

namespace win32 {

/// A function of a system library that is loaded only when needed, so that it does not delay the
/// start. Null if the system lacks it.
template <class Function>
Function lateFunction(const wchar_t* library, const char* name) {
  const HMODULE module = LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  if (!module) return nullptr;
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

}  // namespace win32
