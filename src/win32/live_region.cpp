#include "win32/live_region.h"

#include <utility>

#include "win32/accessible_name.h"
#include "win32/text.h"

namespace win32 {

void speak(HWND window) {
  NotifyWinEvent(EVENT_OBJECT_LIVEREGIONCHANGED, window, OBJID_CLIENT, CHILDID_SELF);
}

// Behind all other controls, so that it is taken for the label of none.
LiveRegion::LiveRegion(HWND parent)
    : handle_(CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 0, 0, 1, 1, parent, nullptr,
                              GetModuleHandleW(nullptr), nullptr)) {
  SetWindowPos(handle_, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void LiveRegion::say(std::string_view text) {
  SetWindowTextW(handle_, wide(text).c_str());
  speak(handle_);
}

void LiveRegion::announce() {
  if (!std::exchange(announced_, true)) announceSpoken(handle_);
}

}  // namespace win32
