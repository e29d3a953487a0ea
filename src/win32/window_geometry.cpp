#include "win32/window.h"

namespace win32 {

using controls::WindowState;

// The frame that the system draws depends on the theme, the resolution and the lines that the menu
// takes in so narrow a window, so that the first attempt may miss the wanted client area.
void Window::place() {
  constexpr int kAttempts = 3;
  const controls::Rect& wanted = bounds();
  const LONG width = scale_.toPixels(wanted.width - controls::kFrameWidth);
  const LONG height = scale_.toPixels(wanted.height - layout().frameHeight());
  RECT frame = {0, 0, width, height};
  scale_.growByFrame(frame, static_cast<DWORD>(GetWindowLongW(handle_, GWL_STYLE)),
                     static_cast<DWORD>(GetWindowLongW(handle_, GWL_EXSTYLE)),
                     GetMenu(handle_) != nullptr);
  LONG frameWidth = frame.right - frame.left;
  LONG frameHeight = frame.bottom - frame.top;
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    SetWindowPos(handle_, nullptr, scale_.toPixels(wanted.left), scale_.toPixels(wanted.top),
                 frameWidth, frameHeight, SWP_NOZORDER | SWP_NOACTIVATE);
    RECT client;
    GetClientRect(handle_, &client);
    if (client.right == width && client.bottom == height) break;
    frameWidth += width - client.right;
    frameHeight += height - client.bottom;
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
    if (now.left != placed_.left) seen.left = scale_.toTwips(now.left);
    if (now.top != placed_.top) seen.top = scale_.toTwips(now.top);
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
  Fonts before = std::exchange(fonts_, Fonts(scale_));
  refreshControls();
  const auto& suggested = *reinterpret_cast<const RECT*>(message.lParam);
  controls::Rect seen = bounds();
  seen.left = scale_.toTwips(suggested.left);
  seen.top = scale_.toTwips(suggested.top);
  noteBounds(seen);
  showBounds();
}

}  // namespace win32
