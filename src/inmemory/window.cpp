#include "inmemory/window.h"

#include "inmemory/button.h"
#include "inmemory/desktop.h"
#include "inmemory/text_box.h"

namespace inmemory {

using controls::ControlKind;
using controls::WindowState;

Window::Window(Desktop& desktop, const controls::WindowLayout& layout)
    : controls::Window(desktop, layout) {
  build();
}

std::unique_ptr<controls::Control> Window::makeControl(const controls::ControlLayout& layout) {
  switch (layout.kind) {
    case ControlKind::TextBox:
      return std::make_unique<TextBox>(*this, layout);
    case ControlKind::Button:
      return std::make_unique<Button>(*this, layout);
    case ControlKind::ToggleButton:
      return std::make_unique<controls::ToggleButton>(*this, layout);
    case ControlKind::OptionButton:
      return std::make_unique<controls::OptionButton>(*this, layout);
    default:
      return std::make_unique<controls::Control>(*this, layout);
  }
}

std::unique_ptr<controls::MenuItem> Window::makeMenuItem(const controls::MenuItemLayout& layout,
                                                         controls::MenuItem* parent) {
  return std::make_unique<controls::MenuItem>(*this, layout, parent);
}

void Window::restore() {
  const bool toMaximized = state() == WindowState::Minimized && maximized_;
  setState(toMaximized ? WindowState::Maximized : WindowState::Normal);
}

// Windows brings a window to the front that it maximizes or restores.
void Window::showState() {
  if (state() == WindowState::Minimized) return;
  if (visible()) bringToFront();
  if (state() == WindowState::Maximized && !maximized_) {
    maximized_ = true;
    normalBounds_ = bounds();
    noteBounds(kScreen);
  } else if (state() == WindowState::Normal && maximized_) {
    maximized_ = false;
    noteBounds(normalBounds_);
  }
}

void Window::showOnTop() {
  noteBounds({0, 0, 0, 0});
}

}  // namespace inmemory
