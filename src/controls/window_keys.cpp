#include <algorithm>
#include <cctype>

#include "controls/desktop.h"
#include "controls/window.h"

namespace controls {

void Window::focusControl(Control& control) {
  if (focusedControl_ == &control || !control.takesFocus()) return;
  Control* before = focusedControl_;
  focusedControl_ = &control;
  if (desktop_.activeWindow_ != this) return;
  showFocus(control);
  if (before) raise(before->onLostFocus);
  // The handler may have moved the focus already.
  if (focusedControl_ == &control) raise(control.onGotFocus);
}

bool Window::isTabStop(const Control& control) const {
  if (!control.takesFocus()) return false;
  const auto* option = dynamic_cast<const OptionButton*>(&control);
  if (!option || option->value()) return true;
  // In a group without a chosen button, each is a tab stop.
  return std::ranges::none_of(option->group(), &OptionButton::value);
}

void Window::moveFocus(bool forward) {
  std::vector<Control*> order(controls_.size());
  std::ranges::transform(controls_, order.begin(), &std::unique_ptr<Control>::get);
  if (!forward) std::reverse(order.begin(), order.end());
  const auto here = std::find(order.begin(), order.end(), focusedControl_);
  if (here != order.end()) std::rotate(order.begin(), here + 1, order.end());
  const auto next = std::find_if(order.begin(), order.end(),
                                 [this](const Control* control) { return isTabStop(*control); });
  if (next != order.end()) focusControl(**next);
}

bool Window::takeKey(const KeyStroke& stroke) {
  if (stroke.alt) return takeAccessKey(stroke.key);
  if (takeShortcut(stroke) || takePaste(stroke) || takeHelp(stroke)) return true;
  if (stroke.key == kKeyTab && !stroke.control) {
    moveFocus(!stroke.shift);
    return true;
  }
  if (stroke.key == kKeyEscape) {
    for (const auto& control : controls_) {
      if (!control->layout().cancel) continue;
      dynamic_cast<ClickControl&>(*control).click();
      return true;
    }
  }
  return takeArrow(stroke);
}

bool Window::takeShortcut(const KeyStroke& stroke) {
  for (const auto& item : menuItems_) {
    if (!item->hasShortcut(stroke)) continue;
    item->choose();
    return true;
  }
  return false;
}

bool Window::takePaste(const KeyStroke& stroke) {
  if (stroke.key != kKeyInsert || !stroke.shift || stroke.control) return false;
  if (auto* box = dynamic_cast<TextBox*>(focusedControl_)) box->paste();
  return true;
}

bool Window::takeHelp(const KeyStroke& stroke) {
  if (stroke.key != kKeyF1 || stroke.shift || stroke.control) return false;
  raise(onHelp);
  return true;
}

// The access key of a label focuses the next control; any other control is clicked. All access keys
// are ASCII.
bool Window::takeAccessKey(KeyCode character) {
  constexpr KeyCode kAscii = 0x7F;
  if (character == 0 || (character & ~kAscii) != 0) return false;
  const char wanted = static_cast<char>(std::toupper(character));
  for (auto here = controls_.begin(); here != controls_.end(); ++here) {
    Control& control = **here;
    if (control.accessKey() != wanted || !control.visible() || !control.enabled()) continue;
    if (control.takesFocus()) {
      control.setFocus();
      dynamic_cast<ClickControl&>(control).click();
      return true;
    }
    const auto next =
        std::find_if(here, controls_.end(), [](const auto& other) { return other->takesFocus(); });
    if (next != controls_.end()) (*next)->setFocus();
    return true;
  }
  return false;
}

// The arrows move cyclically among the option buttons of a group.
bool Window::takeArrow(const KeyStroke& stroke) {
  auto* from = dynamic_cast<OptionButton*>(focusedControl_);
  if (!from || stroke.key < kKeyLeft || stroke.key > kKeyDown) return false;
  std::vector<OptionButton*> group = from->group();
  std::erase_if(group, [](const OptionButton* option) { return !option->takesFocus(); });
  if (stroke.key == kKeyLeft || stroke.key == kKeyUp) std::reverse(group.begin(), group.end());
  std::rotate(group.begin(), std::find(group.begin(), group.end(), from) + 1, group.end());
  group.front()->setFocus();
  group.front()->click();
  return true;
}

void Window::sendKey(KeyCode key, KeyAscii character) {
  desktop_.events().post([this, key, character] {
    if (!takeKey({key}) && focusedControl_) focusedControl_->typeCharacter(character);
    if (focusedControl_) focusedControl_->keyUp(key);
  });
}

}  // namespace controls
