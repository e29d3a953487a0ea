#include "controls/window.h"

#include <algorithm>
#include <cassert>

#include "controls/desktop.h"

namespace controls {

Window::Window(Desktop& desktop, const WindowLayout& layout)
    : desktop_(desktop),
      layout_(layout),
      name_(layout.name),
      caption_(layout.caption),
      bounds_(layout.place) {
  // Behind all others until it is shown.
  desktop_.windows_.insert(desktop_.windows_.begin(), this);
}

Window::~Window() {
  desktop_.noteGone(*this);
}

void Window::build() {
  for (const ControlLayout& control : layout_.controls) controls_.push_back(makeControl(control));
  std::vector<MenuItem*> menus;
  for (const MenuItemLayout& item : layout_.menu) {
    menus.resize(static_cast<std::size_t>(item.level));
    menuItems_.push_back(makeMenuItem(item, menus.empty() ? nullptr : menus.back()));
    menus.push_back(menuItems_.back().get());
  }
}

void Window::setCaption(std::string_view caption) {
  caption_ = caption;
  showCaption();
}

void Window::setBounds(const Rect& wanted) {
  Rect bounds = wanted;
  bounds.width = std::max(bounds.width, kFrameWidth);
  bounds.height = std::max(bounds.height, layout_.frameHeight());
  if (bounds_ == bounds) return;
  const Rect before = bounds_;
  bounds_ = bounds;
  showBounds();
  raiseResizeIfSized(before);
}

void Window::setLeft(Twips left) {
  setBounds({left, bounds_.top, bounds_.width, bounds_.height});
}

void Window::setTop(Twips top) {
  setBounds({bounds_.left, top, bounds_.width, bounds_.height});
}

void Window::setWidth(Twips width) {
  setBounds({bounds_.left, bounds_.top, width, bounds_.height});
}

void Window::setHeight(Twips height) {
  setBounds({bounds_.left, bounds_.top, bounds_.width, height});
}

void Window::raiseResizeIfSized(const Rect& before) {
  const bool sized = bounds_.width != before.width || bounds_.height != before.height;
  if (shownOnce_ && sized) raise(onResize);
}

void Window::show() {
  if (!shownOnce_) {
    shownOnce_ = true;
    raise(onResize);
  }
  if (!visible_) {
    visible_ = true;
    showVisible();
  }
  bringToFront();
}

void Window::showModal() {
  desktop_.setModal(this);
  show();
}

void Window::hide() {
  if (!visible_) return;
  visible_ = false;
  if (desktop_.modal_ == this) desktop_.setModal(nullptr);
  if (desktop_.activeWindow_ == this) desktop_.activeWindow_ = nullptr;
  Window* next = desktop_.frontWindow();
  if (next && !desktop_.activeWindow_) handOver(*next);
  showVisible();
}

bool Window::enabled() const {
  return desktop_.takesInput(*this);
}

void Window::setState(WindowState state) {
  if (state_ == state) return;
  state_ = state;
  showState();
}

void Window::setOnTop(bool onTop) {
  onTop_ = onTop;
  showOnTop();
}

void Window::requestClose() {
  if (!onClose) return;
  desktop_.dismissDialogsOver(*this);
  onClose();
}

Control* Window::findControl(std::string_view name) const {
  for (const auto& control : controls_)
    if (control->name() == name) return control.get();
  return nullptr;
}

MenuItem* Window::findMenuItem(std::string_view name) const {
  for (const auto& item : menuItems_)
    if (item->name() == name) return item.get();
  return nullptr;
}

Control& Window::control(std::string_view name) const {
  Control* control = findControl(name);
  assert(control);
  return *control;
}

TextBox& Window::textBox(std::string_view name) const {
  return dynamic_cast<TextBox&>(control(name));
}

Button& Window::button(std::string_view name) const {
  return dynamic_cast<Button&>(control(name));
}

ToggleButton& Window::toggleButton(std::string_view name) const {
  return dynamic_cast<ToggleButton&>(control(name));
}

OptionButton& Window::optionButton(std::string_view name) const {
  return dynamic_cast<OptionButton&>(control(name));
}

MenuItem& Window::menuItem(std::string_view name) const {
  MenuItem* item = findMenuItem(name);
  assert(item);
  return *item;
}

void Window::noteBounds(const Rect& bounds) {
  const Rect before = bounds_;
  bounds_ = bounds;
  raiseResizeIfSized(before);
}

void Window::noteState(WindowState state) {
  state_ = state;
}

void Window::noteActivated() {
  desktop_.noteInFront(*this);
  if (desktop_.activeWindow_ == this) return;
  if (!focusedControl_) moveFocus(true);
  Window* before = desktop_.activeWindow_;
  if (before && before->focusedControl_) raise(before->focusedControl_->onLostFocus);
  desktop_.activeWindow_ = this;
  if (focusedControl_) raise(focusedControl_->onGotFocus);
  raise(onActivate);
}

}  // namespace controls
