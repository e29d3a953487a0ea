#pragma once

#include "controls/control.h"

namespace controls {

/// What can be clicked: buttons, toggle buttons, option buttons.
class ClickControl : public Control {
 public:
  using Control::Control;

  std::function<void()> onClick;

  /// What the user's click does, once the focus is here. Nothing when it is disabled or not
  /// visible.
  virtual void click();

  /// Enter and Space click.
  void typeCharacter(KeyAscii character) override;
};

/// A button is pressed and comes up again.
class Button : public ClickControl {
 public:
  using ClickControl::ClickControl;
};

/// A toggle button stays down until it is pressed again.
class ToggleButton : public ClickControl {
 public:
  using ClickControl::ClickControl;

  /// 1 when it is down, else 0.
  int value() const { return value_; }
  /// Raises Click when the value changes, as a user's click does.
  void setValue(int value);
  void click() override;

 protected:
  virtual void showValue() {}

 private:
  int value_ = 0;
};

/// Of the option buttons of a group one is chosen.
class OptionButton : public ClickControl {
 public:
  OptionButton(Window& window, const ControlLayout& layout);

  bool value() const { return value_; }
  /// Choosing one releases the others of its group and raises its Click when it was not chosen
  /// before.
  void setValue(bool value);
  void click() override;

 protected:
  virtual void showValue() {}

 private:
  bool value_;
};

}  // namespace controls
