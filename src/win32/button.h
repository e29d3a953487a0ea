#pragma once

#include "controls/buttons.h"
#include "win32/key_face.h"
#include "win32/native_control.h"

namespace win32 {

/// A button with the face of a key.
template <class Kind>
class Key : public Native<Kind> {
 public:
  Key(Window& frame, const controls::ControlLayout& layout, DWORD style)
      : Native<Kind>(frame, layout, {L"BUTTON", style, 0, keyName(layout, layout.caption)}),
        face_(frame, *this) {}

  void takeNotification(UINT code) override {
    if (code == BN_CLICKED) this->click();
  }
  LRESULT customDraw(NMCUSTOMDRAW& draw) override { return face_.draw(draw, shows()); }
  void refresh() override {
    face_.refresh();
    Native<Kind>::refresh();
  }

 protected:
  virtual KeyFace::Shows shows() const = 0;
  std::wstring windowText() const override {
    return keyName(Native<Kind>::layout(), this->caption());
  }

 private:
  KeyFace face_;
};

/// A push button.
class Button : public Key<controls::Button> {
 public:
  Button(Window& frame, const controls::ControlLayout& layout)
      : Key(frame, layout, BS_PUSHBUTTON) {}

  void confirm(std::string_view text) override;

 protected:
  std::optional<LRESULT> take(const Message& message) override;
  KeyFace::Shows shows() const override;
  std::wstring windowText() const override;
  void showBackColor() override;

 private:
  void showConfirmation(std::string_view text);

  // Empty except for the moment after a confirmed click.
  std::wstring confirmation_;
};

/// A button that stays down.
class ToggleButton : public Key<controls::ToggleButton> {
 public:
  ToggleButton(Window& frame, const controls::ControlLayout& layout)
      : Key(frame, layout, BS_CHECKBOX | BS_PUSHLIKE) {}

 protected:
  KeyFace::Shows shows() const override;
  void showValue() override;
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
