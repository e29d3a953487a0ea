#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "inmemory/button.h"
#include "inmemory/desktop.h"
#include "inmemory/text_box.h"

namespace recording {

using Log = std::vector<std::string>;

/// A desktop that notes what its windows, controls and menus are asked to show.
class Desktop : public inmemory::Desktop {
 public:
  std::unique_ptr<controls::Window> createWindow(const controls::WindowLayout& layout) override;

  void note(const std::string& event) { log_.push_back(event); }
  /// What has been noted since the last call.
  Log takeLog() { return std::exchange(log_, {}); }

 protected:
  void dismissSystemDialogs() override { note("dismiss dialogs"); }

 private:
  Log log_;
};

template <class Base>
class Control : public Base {
 public:
  using Base::Base;

 protected:
  void note(const std::string& event) {
    dynamic_cast<Desktop&>(this->window().desktop()).note(this->name() + " " + event);
  }
  void showCaption() override { note("caption"); }
  void showVisible() override { note("visible"); }
  void showEnabled() override { note("enabled"); }
  void showBounds() override { note("bounds"); }
  void showBackColor() override { note("color"); }
};

template <class Base>
class ControlWithValue : public Control<Base> {
 public:
  using Control<Base>::Control;

 protected:
  void showValue() override { this->note("value"); }
};

class TextBox : public Control<inmemory::TextBox> {
 public:
  using Control::Control;

 protected:
  void showAlignment() override { note("alignment"); }
};

class MenuItem : public controls::MenuItem {
 public:
  MenuItem(controls::Window& window, const controls::MenuItemLayout& layout,
           controls::MenuItem* parent)
      : controls::MenuItem(window, layout, parent), window_(window) {}

 protected:
  void note(const std::string& event) {
    dynamic_cast<Desktop&>(window_.desktop()).note(name() + " " + event);
  }
  void showCaption() override { note("caption"); }
  void showChecked() override { note("checked"); }
  void showEnabled() override { note("enabled"); }

 private:
  controls::Window& window_;
};

class Window : public controls::Window {
 public:
  Window(Desktop& desktop, const controls::WindowLayout& layout)
      : controls::Window(desktop, layout), recorder_(desktop) {
    build();
  }

  using controls::Window::noteBounds;
  using controls::Window::noteState;

 protected:
  std::unique_ptr<controls::Control> makeControl(const controls::ControlLayout& layout) override {
    using controls::ControlKind;
    switch (layout.kind) {
      case ControlKind::TextBox:
        return std::make_unique<TextBox>(*this, layout);
      case ControlKind::Button:
        return std::make_unique<Control<inmemory::Button>>(*this, layout);
      case ControlKind::ToggleButton:
        return std::make_unique<ControlWithValue<controls::ToggleButton>>(*this, layout);
      case ControlKind::OptionButton:
        return std::make_unique<ControlWithValue<controls::OptionButton>>(*this, layout);
      default:
        return std::make_unique<Control<controls::Control>>(*this, layout);
    }
  }
  std::unique_ptr<controls::MenuItem> makeMenuItem(const controls::MenuItemLayout& layout,
                                                   controls::MenuItem* parent) override {
    return std::make_unique<MenuItem>(*this, layout, parent);
  }

  void note(const std::string& event) { recorder_.note(name() + " " + event); }
  void showCaption() override { note("caption"); }
  void showBounds() override { note("bounds"); }
  void showVisible() override { note("visible"); }
  void showEnabled() override { note("enabled"); }
  void showState() override { note("state"); }
  void showOnTop() override { note("on top"); }
  void showFocus(controls::Control& control) override { note("focus on " + control.name()); }
  void bringToFront() override {
    note("to front");
    noteActivated();
  }

 private:
  Desktop& recorder_;
};

inline std::unique_ptr<controls::Window> Desktop::createWindow(
    const controls::WindowLayout& layout) {
  return std::make_unique<Window>(*this, layout);
}

}  // namespace recording
