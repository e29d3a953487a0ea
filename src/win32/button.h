#pragma once

#include "controls/buttons.h"
#include "win32/key_face.h"
#include "win32/native_control.h"

namespace win32 {

/// A push button.
class Button : public Native<controls::Button> {
 public:
  Button(Window& frame, const controls::ControlLayout& layout);

  void takeNotification(UINT code) override;
  LRESULT customDraw(NMCUSTOMDRAW& draw) override;
  void refresh() override;
  void confirm(std::string_view text) override;

 protected:
  std::optional<LRESULT> take(const Message& message) override;
  std::wstring windowText() const override;
  void showBackColor() override;

 private:
  void showConfirmation(std::string_view text);

  KeyFace face_;
  // Empty except for the moment after a confirmed click.
  std::wstring confirmation_;
  bool announced_ = false;
};

/// A button that stays down.
class ToggleButton : public Native<controls::ToggleButton> {
 public:
  ToggleButton(Window& frame, const controls::ControlLayout& layout);

  void takeNotification(UINT code) override;
  LRESULT customDraw(NMCUSTOMDRAW& draw) override;
  void refresh() override;

 protected:
  std::wstring windowText() const override { return keyName(Native::layout(), caption()); }
  void showValue() override;

 private:
  KeyFace face_;
};

/// A radio button.
class OptionButton : public Native<controls::OptionButton> {
 public:
  OptionButton(Window& frame, const controls::ControlLayout& layout);

  void takeNotification(UINT code) override;

 protected:
  std::optional<LRESULT> take(const Message& message) override;
  void showValue() override;

 private:
  bool takingFocus_ = false;
};

}  // namespace win32
