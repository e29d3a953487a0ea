#include "win32/window.h"

#include <algorithm>
#include <utility>

#include "win32/native_control.h"
#include "win32/work_area.h"

namespace win32 {

using controls::WindowState;

namespace {

// What a client area lacks in one direction. One without any room does not tell how much it is.
LONG missing(LONG seen, LONG wanted) {
  constexpr LONG kAmple = 300;
  return seen > 0 || seen == wanted ? wanted - seen : kAmple;
}

}  // namespace

SIZE Window::clientSize(controls::Twips width, controls::Twips height) const {
  return {scale_.toPixels(width - controls::kFrameWidth),
          scale_.toPixels(height - layout().frameHeight())};
}

SIZE Window::frameSize() const {
  RECT frame = {};
  scale_.growByFrame(frame, static_cast<DWORD>(GetWindowLongW(handle_, GWL_STYLE)),
                     static_cast<DWORD>(GetWindowLongW(handle_, GWL_EXSTYLE)),
                     GetMenu(handle_) != nullptr);
  return {frame.right - frame.left, frame.bottom - frame.top};
}

// What the monitor must have room for: a window at its designed place, or, since a window of fixed
// size is moved onto its monitor, at any place.
controls::Rect Window::neededOnMonitor() const {
  controls::Rect needed = layout().place;
  if (!layout().resizable) needed.left = needed.top = 0;
  return needed;
}

// Moving it onto its monitor does not change its bounds.
POINT Window::cornerFor(const SIZE& size) const {
  const POINT wanted = {screenScale_.toPixels(bounds().left), screenScale_.toPixels(bounds().top)};
  if (layout().resizable) return wanted;
  const RECT place = {wanted.x, wanted.y, wanted.x + size.cx, wanted.y + size.cy};
  return cornerWithin(workAreaOf(MonitorFromRect(&place, MONITOR_DEFAULTTONEAREST)), place);
}

// The system's frame depends on the theme, the resolution of the new monitor, and the number of
// menu lines in a narrow window, so the first attempt may not result in the wanted client area.
void Window::place() {
  constexpr int kAttempts = 4;
  SIZE frame = frameSize();
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    const int dpi = scale_.dpi();
    const SIZE designed = clientSize(bounds().width, bounds().height);
    const SIZE wanted = {std::max(0L, designed.cx), std::max(0L, designed.cy)};
    const SIZE size = {wanted.cx + frame.cx, wanted.cy + frame.cy};
    const POINT corner = cornerFor(size);
    SetWindowPos(handle_, nullptr, corner.x, corner.y, size.cx, size.cy,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    if (scale_.dpi() != dpi) {
      frame = frameSize();
      continue;
    }
    RECT client;
    GetClientRect(handle_, &client);
    if (client.right == wanted.cx && client.bottom == wanted.cy) break;
    frame.cx += missing(client.right, wanted.cx);
    frame.cy += missing(client.bottom, wanted.cy);
  }
}

void Window::showBounds() {
  if (IsIconic(handle_)) {
    placeWhenRestored_ = true;
    return;
  }
  placing_ = true;
  place();
  placing_ = false;
  placed_ = measure();
}

void Window::showState() {
  if (state() == WindowState::Minimized) {
    ShowWindow(handle_, SW_MINIMIZE);
  } else if (state() == WindowState::Maximized) {
    ShowWindow(handle_, SW_MAXIMIZE);
  } else {
    ShowWindow(handle_, SW_RESTORE);
    // A window that was maximized before it was minimized is restored in two steps.
    if (IsZoomed(handle_)) ShowWindow(handle_, SW_RESTORE);
  }
}

Window::Placement Window::measure() const {
  RECT frame;
  RECT client;
  GetWindowRect(handle_, &frame);
  GetClientRect(handle_, &client);
  return {frame.left, frame.top, client.right, client.bottom, scale_.dpi()};
}

std::optional<LRESULT> Window::takeGeometry(const Message& message) {
  if (message.id == WM_DPICHANGED) {
    takeResolution(message);
    return 0;
  }
  if (message.id == WM_SYSCOMMAND) return takeSystemCommand(message);
  if (message.id == WM_GETMINMAXINFO) {
    limitDragging(*reinterpret_cast<MINMAXINFO*>(message.lParam));
    return 0;
  }
  const LRESULT result = passOn(message);
  for (const auto& control : controls()) NativeControl::of(*control).frameSized();
  if (!placing_) noteGeometry();
  return result;
}

// The system returns when the user has released the frame.
LRESULT Window::takeSystemCommand(const Message& message) {
  constexpr WPARAM kCommand = 0xFFF0;
  const bool before = std::exchange(dragging_, (message.wParam & kCommand) == SC_SIZE);
  const LRESULT result = passOn(message);
  dragging_ = before;
  return result;
}

// A stored size is applied unchanged, even one smaller than the system's minimum.
void Window::limitDragging(MINMAXINFO& limits) const {
  constexpr LONG kLargest = 32767;
  limits.ptMinTrackSize = {0, 0};
  limits.ptMaxTrackSize = {kLargest, kLargest};
  if (!dragging_) return;
  const SIZE frame = frameSize();
  const SIZE smallest = clientSize(layout().smallestWidth, layout().smallestHeight);
  limits.ptMinTrackSize = {smallest.cx + frame.cx, smallest.cy + frame.cy};
}

void Window::noteGeometry() {
  if (IsIconic(handle_)) {
    noteState(WindowState::Minimized);
    return;
  }
  const Placed before = {bounds(), placed_};
  const bool restored = maximized_ && !IsZoomed(handle_);
  if (!maximized_ && IsZoomed(handle_)) normal_ = before;
  maximized_ = IsZoomed(handle_);
  noteState(maximized_ ? WindowState::Maximized : WindowState::Normal);
  if (placeWhenRestored_) {
    placeWhenRestored_ = false;
    showBounds();
  } else {
    notePlacement(restored ? normal_ : before);
  }
}

// If the pixels have not changed, the finer twips are kept. The system keeps the size of a window
// in pixels, whatever the resolution of the screen to which it returns.
void Window::notePlacement(const Placed& before) {
  placed_ = measure();
  const bool rescaled = placed_.dpi != before.placement.dpi;
  controls::Rect seen = before.bounds;
  if (placed_.left != before.placement.left) seen.left = screenScale_.toTwips(placed_.left);
  if (placed_.top != before.placement.top) seen.top = screenScale_.toTwips(placed_.top);
  if (rescaled && !maximized_) {
    noteBounds(seen);
    showBounds();
    return;
  }
  if (rescaled || placed_.width != before.placement.width)
    seen.width = scale_.toTwips(placed_.width) + controls::kFrameWidth;
  if (rescaled || placed_.height != before.placement.height)
    seen.height = scale_.toTwips(placed_.height) + layout().frameHeight();
  noteBounds(seen);
}

// The window and its contents keep their size in twips on the new monitor; a maximized one still
// fills its screen, and a minimized one is adjusted when it is restored.
void Window::takeResolution(const Message& message) {
  rescale(Scale::at(LOWORD(message.wParam), handle_, neededOnMonitor()),
          *reinterpret_cast<const RECT*>(message.lParam));
}

// The user may have changed the text size.
void Window::takeTextSize() {
  const Scale now = Scale::at(scale_.monitorDpi(), handle_, neededOnMonitor());
  if (now.dpi() == scale_.dpi()) return;
  RECT place;
  GetWindowRect(handle_, &place);
  rescale(now, place);
}

void Window::rescale(const Scale& scale, const RECT& suggested) {
  scale_ = scale;
  const Fonts before = std::exchange(fonts_, Fonts(scale_));
  refreshControls();
  if (placing_ || IsIconic(handle_)) return;
  if (IsZoomed(handle_)) {
    SetWindowPos(handle_, nullptr, suggested.left, suggested.top, suggested.right - suggested.left,
                 suggested.bottom - suggested.top, SWP_NOZORDER | SWP_NOACTIVATE);
    noteGeometry();
    return;
  }
  controls::Rect seen = bounds();
  if (suggested.left != placed_.left) seen.left = screenScale_.toTwips(suggested.left);
  if (suggested.top != placed_.top) seen.top = screenScale_.toTwips(suggested.top);
  noteBounds(seen);
  showBounds();
}

}  // namespace win32
