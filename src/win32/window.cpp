#include "win32/window.h"

#include <algorithm>
#include <cassert>

#include "win32/button.h"
#include "win32/desktop.h"
#include "win32/edge.h"
#include "win32/label.h"
#include "win32/menu_item.h"
#include "win32/resources.h"
#include "win32/tape_box.h"
#include "win32/text.h"
#include "win32/text_box.h"

namespace win32 {

using controls::ControlKind;

namespace {

constexpr wchar_t kWindowClass[] = L"TallyrexWindow";

ATOM registerClass(WNDPROC procedure) {
  const HINSTANCE instance = GetModuleHandleW(nullptr);
  WNDCLASSEXW definition = {};
  definition.cbSize = sizeof definition;
  definition.lpfnWndProc = procedure;
  definition.hInstance = instance;
  definition.hIcon = LoadIconW(instance, kProgramIcon);
  definition.hIconSm = static_cast<HICON>(LoadImageW(instance, kProgramIcon, IMAGE_ICON,
                                                     GetSystemMetrics(SM_CXSMICON),
                                                     GetSystemMetrics(SM_CYSMICON), LR_SHARED));
  definition.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  definition.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  definition.lpszClassName = kWindowClass;
  return RegisterClassExW(&definition);
}

// A window with a cancel button is a dialog, which cannot be minimized.
bool isDialog(const controls::WindowLayout& layout) {
  return std::any_of(layout.controls.begin(), layout.controls.end(),
                     [](const controls::ControlLayout& control) { return control.cancel; });
}

DWORD styleOf(const controls::WindowLayout& layout) {
  if (layout.resizable) return WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;
  constexpr DWORD kDialog = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
  return isDialog(layout) ? kDialog : kDialog | WS_MINIMIZEBOX;
}

}  // namespace

Window::Window(Desktop& desktop, const controls::WindowLayout& layout)
    : controls::Window(desktop, layout),
      screen_(desktop),
      handle_(createHandle()),
      scale_(Scale::at(Scale::of(handle_).monitorDpi(), handle_, neededOnMonitor())),
      fonts_(scale_) {
  if (!layout.menu.empty()) menu_.reset(CreateMenu());
  build();
  // From now on the system destroys the menu with the window.
  if (menu_) SetMenu(handle_, menu_.release());
  for (const auto& control : controls())
    toolTips_.add(NativeControl::of(*control).handle(), control->toolTip());
  SetWindowLongPtrW(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  showBounds();
}

Window::~Window() {
  SetWindowLongPtrW(handle_, GWLP_USERDATA, 0);
  DestroyWindow(handle_);
}

HWND Window::createHandle() const {
  static const ATOM windowClass = registerClass(receive);
  const HWND handle =
      CreateWindowExW(0, MAKEINTATOM(windowClass), wide(caption()).c_str(), styleOf(layout()), 0, 0,
                      0, 0, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
  assert(handle);
  return handle;
}

std::unique_ptr<controls::Control> Window::makeControl(const controls::ControlLayout& layout) {
  switch (layout.kind) {
    case ControlKind::TextBox:
      if (layout.multiLine) return std::make_unique<TapeBox>(*this, layout);
      return std::make_unique<TextBox>(*this, layout);
    case ControlKind::Button:
      return std::make_unique<Button>(*this, layout);
    case ControlKind::ToggleButton:
      return std::make_unique<ToggleButton>(*this, layout);
    case ControlKind::OptionButton:
      return std::make_unique<OptionButton>(*this, layout);
    case ControlKind::Frame:
      return std::make_unique<Frame>(*this, layout);
    default:
      return std::make_unique<Label>(*this, layout);
  }
}

std::unique_ptr<controls::MenuItem> Window::makeMenuItem(const controls::MenuItemLayout& layout,
                                                         controls::MenuItem* parent) {
  return std::make_unique<MenuItem>(*this, menu_.get(), layout, static_cast<MenuItem*>(parent));
}

void Window::showCaption() {
  SetWindowTextW(handle_, wide(caption()).c_str());
}

void Window::showEnabled() {
  EnableWindow(handle_, enabled());
  // A window that was activated while disabled has not given the focus to its control.
  if (enabled() && GetActiveWindow() == handle_) focusNative();
}

void Window::showVisible() {
  ShowWindow(handle_, visible() ? SW_SHOWNA : SW_HIDE);
}

void Window::showOnTop() {
  SetWindowPos(handle_, onTop() ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
               SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

// The system may leave the keyboard with another program. The window is then in front of the
// program's other windows, and gets the keyboard when the user returns.
void Window::bringToFront() {
  SetForegroundWindow(handle_);
  SetActiveWindow(handle_);
  noteActivated();
}

void Window::handOver(controls::Window& next) {
  if (isInFront()) return controls::Window::handOver(next);
  // Another program has the keyboard and keeps it.
  static_cast<Window&>(next).noteActivated();
}

void Window::showFocus(controls::Control& control) {
  SetFocus(NativeControl::of(control).handle());
}

void Window::focusNative() {
  if (focusedControl()) showFocus(*focusedControl());
}

void Window::refreshControls() {
  for (const auto& control : controls()) NativeControl::of(*control).refresh();
  RedrawWindow(handle_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

}  // namespace win32
