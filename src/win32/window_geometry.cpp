#include "win32/window.h"

#include <utility>

namespace win32 {

using controls::WindowState;

SIZE Window::clientSize() const {
  return {scale_.toPixels(bounds().width - controls::kFrameWidth),
          scale_.toPixels(bounds().height - layout().frameHeight())};
}

SIZE Window::frameSize() const {
  RECT frame = {};
  scale_.growByFrame(frame, static_cast<DWORD>(GetWindowLongW(handle_, GWL_STYLE)),
                     static_cast<DWORD>(GetWindowLongW(handle_, GWL_EXSTYLE)),
                     GetMenu(handle_) != nullptr);
  return {frame.right - frame.left, frame.bottom - frame.top};
}

// The frame that the system draws depends on the theme, the resolution of the monitor that the
// window comes to stand on, and the lines that the menu takes in so narrow a window, so that the
// first attempt may miss the wanted client area.
void Window::place() {
  constexpr int kAttempts = 4;
  SIZE frame = frameSize();
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    const int dpi = scale_.dpi();
    const SIZE wanted = clientSize();
    SetWindowPos(handle_, nullptr, screenScale_.toPixels(bounds().left),
                 screenScale_.toPixels(bounds().top), wanted.cx + frame.cx, wanted.cy + frame.cy,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    if (scale_.dpi() != dpi) {
      frame = frameSize();
      continue;
    }
    RECT client;
    GetClientRect(handle_, &client);
    if (client.right == wanted.cx && client.bottom == wanted.cy) break;
    frame.cx += wanted.cx - client.right;
    frame.cy += wanted.cy - client.bottom;
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
  return {frame.left, frame.top, client.right, client.bottom};
}

std::optional<LRESULT> Window::takeGeometry(const Message& message) {
  if (message.id == WM_DPICHANGED) {
    takeResolution(message);
    return 0;
  }
  if (message.id == WM_GETMINMAXINFO) {
    // A stored size is applied as it stands, and the micro window is smaller than the system likes.
    constexpr LONG kLargest = 32767;
    auto& limits = *reinterpret_cast<MINMAXINFO*>(message.lParam);
    limits.ptMinTrackSize = {0, 0};
    limits.ptMaxTrackSize = {kLargest, kLargest};
    return 0;
  }
  const LRESULT result = passOn(message);
  if (!placing_) noteGeometry();
  return result;
}

void Window::noteGeometry() {
  if (IsIconic(handle_)) {
    noteState(WindowState::Minimized);
    return;
  }
  const bool maximized = IsZoomed(handle_);
  if (maximized && !maximized_) normal_ = {bounds(), placed_};
  maximized_ = maximized;
  noteState(maximized ? WindowState::Maximized : WindowState::Normal);
  if (placeWhenRestored_) {
    placeWhenRestored_ = false;
    showBounds();
    return;
  }
  const Placement now = measure();
  if (now == placed_) return;
  controls::Rect seen = bounds();
  if (now == normal_.placed) {
    seen = normal_.bounds;
  } else {
    // What has not changed in pixels has not changed in twips, which are finer.
    if (now.left != placed_.left) seen.left = screenScale_.toTwips(now.left);
    if (now.top != placed_.top) seen.top = screenScale_.toTwips(now.top);
    if (now.width != placed_.width) seen.width = scale_.toTwips(now.width) + controls::kFrameWidth;
    if (now.height != placed_.height)
      seen.height = scale_.toTwips(now.height) + layout().frameHeight();
  }
  placed_ = now;
  noteBounds(seen);
}

// The window keeps its size in twips on the new monitor, and everything in it with it.
void Window::takeResolution(const Message& message) {
  scale_ = Scale(LOWORD(message.wParam));
  const Fonts before = std::exchange(fonts_, Fonts(scale_));
  refreshControls();
  if (placing_) return;
  const auto& suggested = *reinterpret_cast<const RECT*>(message.lParam);
  controls::Rect seen = bounds();
  seen.left = screenScale_.toTwips(suggested.left);
  seen.top = screenScale_.toTwips(suggested.top);
  noteBounds(seen);
  showBounds();
}

}  // namespace win32
