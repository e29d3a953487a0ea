#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

#include "win32/theme.h"

namespace win32 {

struct DeleteGdiObject {
  void operator()(HGDIOBJ object) const noexcept { DeleteObject(object); }
};

struct DestroyOwnedIcon {
  void operator()(HICON icon) const noexcept { DestroyIcon(icon); }
};

struct DestroyOwnedMenu {
  void operator()(HMENU menu) const noexcept { DestroyMenu(menu); }
};

struct CloseTheme {
  void operator()(HTHEME theme) const noexcept { closeTheme(theme); }
};

struct CloseRegistryKey {
  void operator()(HKEY key) const noexcept { RegCloseKey(key); }
};

struct CloseOwnedHandle {
  void operator()(HANDLE handle) const noexcept { CloseHandle(handle); }
};

template <class Handle, class Release>
using Owned = std::unique_ptr<std::remove_pointer_t<Handle>, Release>;

/// Handles that are released by their owner.
using OwnedFont = Owned<HFONT, DeleteGdiObject>;
using OwnedBrush = Owned<HBRUSH, DeleteGdiObject>;
using OwnedIcon = Owned<HICON, DestroyOwnedIcon>;
using OwnedMenu = Owned<HMENU, DestroyOwnedMenu>;
using OwnedTheme = Owned<HTHEME, CloseTheme>;
using OwnedKey = Owned<HKEY, CloseRegistryKey>;
using OwnedHandle = Owned<HANDLE, CloseOwnedHandle>;

}  // namespace win32
