#pragma once

#include <vector>

#include "controls/control.h"

namespace controls {

/// A control that can be clicked: a button, toggle button or option button.
class ClickControl : public Control {
 public:
  using Control::Control;

  std::function<void()> onClick;

  /// Does what a user's click does, apart from moving the focus. No effect while disabled or
  /// hidden.
  void click();

  /// Enter and Space click the control.
  void typeCharacter(KeyAscii character) override;

 protected:
  virtual void act() { raise(onClick); }
};

/// A push button.
class Button : public ClickControl {
 public:
  using ClickControl::ClickControl;

  /// Shows for a moment that the click has been carried out, and has a screen reader read out the
  /// text.
  virtual void confirm(std::string_view text) = 0;
};

/// A button that stays down until it is pressed again.
class ToggleButton : public ClickControl {
 public:
  using ClickControl::ClickControl;

  /// 1 while it is down, else 0.
  int value() const { return value_; }
  /// Raises Click when the value changes, as a click by the user does.
  void setValue(int value);
  void toggle() { setValue(1 - value_); }

 protected:
  void act() override { toggle(); }
  virtual void showValue() {}

 private:
  int value_ = 0;
};

/// A button of a group of which one is chosen.
class OptionButton : public ClickControl {
 public:
  OptionButton(Window& window, const ControlLayout& layout);

  bool value() const { return value_; }
  /// Choosing a button releases the others of its group, and raises Click if it was not chosen
  /// before.
  void setValue(bool value);
  /// The buttons of its group, itself among them, in tab order.
  std::vector<OptionButton*> group() const;

 protected:
  void act() override { setValue(true); }
  virtual void showValue() {}

 private:
  bool value_;
};

}  // namespace controls
