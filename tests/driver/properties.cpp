#include "driver/properties.h"

#include <optional>

#include "driver/command.h"

namespace driver {

using controls::Color;
using controls::WindowState;

namespace {

Json colorValue(Color color) {
  if (color.scheme() == Color::Scheme::Window) return "Window";
  if (color.scheme() == Color::Scheme::ButtonFace) return "ButtonFace";
  return color.value();
}

std::optional<Json> boundsProperty(const controls::Rect& bounds, const std::string& property) {
  if (property == "Left") return bounds.left;
  if (property == "Top") return bounds.top;
  if (property == "Width") return bounds.width;
  if (property == "Height") return bounds.height;
  return {};
}

std::optional<Json> windowProperty(const controls::Window& window, const std::string& property) {
  if (property == "Caption") return window.caption();
  if (property == "Visible") return window.visible();
  if (property == "Enabled") return window.enabled();
  if (property == "OnTop") return window.onTop();
  if (property == "Focused") return window.desktop().activeWindow() == &window;
  if (property == "WindowState") {
    if (window.state() == WindowState::Minimized) return "minimized";
    return window.state() == WindowState::Maximized ? "maximized" : "normal";
  }
  return boundsProperty(window.bounds(), property);
}

std::optional<Json> menuProperty(const controls::MenuItem& item, const std::string& property) {
  if (property == "Caption") return item.caption();
  if (property == "Checked") return item.checked();
  if (property == "Enabled") return item.enabled();
  if (property == "Shortcut") return item.shortcut();
  return {};
}

std::optional<Json> textProperty(const controls::TextBox& box, const std::string& property) {
  if (property == "Text") return box.text();
  if (property == "SelStart") return box.selStart();
  if (property == "SelLength") return box.selLength();
  if (property == "Alignment")
    return box.alignment() == controls::Alignment::Left ? "left" : "right";
  return {};
}

std::optional<Json> kindProperty(const controls::Control& control, const std::string& property) {
  if (const auto* box = dynamic_cast<const controls::TextBox*>(&control))
    return textProperty(*box, property);
  if (property != "Value") return {};
  if (const auto* toggle = dynamic_cast<const controls::ToggleButton*>(&control))
    return toggle->value();
  if (const auto* option = dynamic_cast<const controls::OptionButton*>(&control))
    return option->value();
  return {};
}

std::optional<Json> controlProperty(const controls::Control& control, const std::string& property) {
  if (auto value = kindProperty(control, property)) return value;
  if (property == "Caption") return control.caption();
  if (property == "Visible") return control.visible();
  if (property == "Enabled") return control.enabled();
  if (property == "BackColor") return colorValue(control.backColor());
  if (property == "ToolTip") return control.toolTip();
  if (property == "Focused") return control.focused();
  return boundsProperty(control.bounds(), property);
}

std::optional<Json> readOf(const controls::Window& window, const std::string& name,
                           const std::string& property) {
  if (const auto* control = window.findControl(name)) return controlProperty(*control, property);
  if (const auto* item = window.findMenuItem(name)) return menuProperty(*item, property);
  throw CommandError("no such control: " + name);
}

bool isWindowName(const std::string& name) {
  return name == "frmCalc" || name == "frmAnnuity" || name == "frmAbout";
}

}  // namespace

Json readProperty(Stage& stage, const std::string& name, const std::string& property) {
  const auto point = name.find('.');
  const bool isWindow = isWindowName(name);
  const std::string owner = isWindow                     ? name
                            : point == std::string::npos ? "frmCalc"
                                                         : name.substr(0, point);
  const controls::Window* window = stage.findWindow(owner);
  if (isWindow && property == "Loaded") return window != nullptr;
  if (!window) throw CommandError("no such window: " + owner);
  const auto value = isWindow ? windowProperty(*window, property)
                              : readOf(*window, name.substr(point + 1), property);
  if (!value) throw CommandError(name + " has no " + property);
  return *value;
}

Json takeSnapshot(const controls::Window& main) {
  const controls::Control* focus = main.focusedControl();
  return {
      {"entry", main.textBox("txtEntry").text()},
      {"caret", main.textBox("txtEntry").selStart()},
      {"tape", main.textBox("txtTape").text()},
      {"caption", main.caption()},
      {"modes_enabled", main.menuItem("mnuWinModes").enabled()},
      {"modes_caption", main.menuItem("mnuWinModes").caption()},
      {"mode_checked", main.menuItem("mnuWinMode(0)").checked() ? 0 : 1},
      {"dec", main.textBox("txtDec").text()},
      {"floating", main.toggleButton("chkFloatingDec").value()},
      {"stationary", main.toggleButton("chkShiftDec").value()},
      {"tape_off", main.toggleButton("chkTapeOff").value()},
      {"memory_lit", main.button("cmdMemPlus").backColor() == Color::rgb(0x00FF00)},
      {"sqrt_visible", main.button("cmdSquareRoot").visible()},
      {"focus", focus ? focus->name() : ""},
  };
}

}  // namespace driver
