#include "win32/work_area.h"

#include <algorithm>

namespace win32 {

RECT workAreaOf(HMONITOR monitor) {
  MONITORINFO info = {};
  info.cbSize = sizeof info;
  GetMonitorInfoW(monitor, &info);
  return info.rcWork;
}

POINT cornerWithin(const RECT& area, const RECT& window) {
  const auto within = [](LONG start, LONG end, LONG first, LONG last) {
    return std::max(first, std::min(start, last - (end - start)));
  };
  return {within(window.left, window.right, area.left, area.right),
          within(window.top, window.bottom, area.top, area.bottom)};
}

}  // namespace win32
