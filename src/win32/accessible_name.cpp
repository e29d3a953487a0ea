#include "win32/accessible_name.h"

#include "win32/text.h"

namespace win32 {

// A screen reader takes the label in front of a box for its name, also a hidden one. It goes with
// the window.
void giveAccessibleName(HWND box, std::string_view name) {
  if (name.empty()) return;
  const HWND label = CreateWindowExW(0, L"STATIC", wide(name).c_str(), WS_CHILD, 0, 0, 0, 0,
                                     GetParent(box), nullptr, GetModuleHandleW(nullptr), nullptr);
  SetWindowPos(box, label, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

}  // namespace win32
