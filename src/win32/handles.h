#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

#include "win32/theme.h"

namespace win32 {

template <auto kRelease>
struct Release {
  void operator()(auto handle) const noexcept { kRelease(handle); }
};

/// A handle that its owner releases with a function.
template <class Handle, auto kRelease>
using Owned = std::unique_ptr<std::remove_pointer_t<Handle>, Release<kRelease>>;

using OwnedFont = Owned<HFONT, DeleteObject>;
using OwnedBrush = Owned<HBRUSH, DeleteObject>;
using OwnedIcon = Owned<HICON, DestroyIcon>;
using OwnedMenu = Owned<HMENU, DestroyMenu>;
using OwnedTheme = Owned<HTHEME, closeTheme>;
using OwnedKey = Owned<HKEY, RegCloseKey>;
using OwnedHandle = Owned<HANDLE, CloseHandle>;

}  // namespace win32
