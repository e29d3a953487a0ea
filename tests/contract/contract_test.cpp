#include "contract/contract_test.h"

#include <array>

#include "common/unicode.h"
#include "driver/keys.h"

namespace contract {

using controls::Alignment;
using controls::ControlKind;
using controls::ControlLayout;
using controls::MenuItemLayout;

namespace {

constexpr auto kControls = std::to_array<ControlLayout>({
    {.kind = ControlKind::TextBox, .name = "first", .place = {100, 100, 2000, 400}},
    {.name = "label", .caption = "&Second:", .place = {100, 600, 900, 300}},
    {.kind = ControlKind::TextBox, .name = "second", .place = {1100, 600, 2000, 400}},
    {.kind = ControlKind::Button,
     .name = "button",
     .caption = "&Go",
     .place = {100, 1100, 900, 400}},
    {.kind = ControlKind::ToggleButton,
     .name = "toggle",
     .place = {1100, 1100, 900, 400},
     .accessibleName = "Toggle"},
    {.kind = ControlKind::OptionButton,
     .name = "left",
     .caption = "&Left",
     .place = {100, 1600, 900, 300},
     .optionGroup = 1,
     .chosen = true},
    {.kind = ControlKind::OptionButton,
     .name = "right",
     .caption = "&Right",
     .place = {1100, 1600, 900, 300},
     .optionGroup = 1},
    {.kind = ControlKind::OptionButton,
     .name = "far",
     .caption = "&Far",
     .place = {2100, 1600, 900, 300},
     .optionGroup = 1},
    {.kind = ControlKind::OptionButton,
     .name = "yes",
     .caption = "&Yes",
     .place = {100, 2000, 900, 300},
     .optionGroup = 2},
    {.kind = ControlKind::OptionButton,
     .name = "no",
     .caption = "&No",
     .place = {1100, 2000, 900, 300},
     .optionGroup = 2},
    {.kind = ControlKind::TextBox,
     .name = "tape",
     .place = {3300, 100, 2500, 2500},
     .alignment = Alignment::Right,
     .multiLine = true},
});

constexpr auto kMenu = std::to_array<MenuItemLayout>({
    {0, "mnuThings", "&Things"},
    {1, "mnuCopy", "&Copy", "Ctrl+C"},
    {1, "mnuMore", "&More"},
    {2, "mnuDeep", "&Deep", "Ctrl+D"},
});

constexpr controls::WindowLayout kTestLayout = {.name = "test",
                                                .caption = "Contract",
                                                .place = {300, 300, 6200, 3800},
                                                .controls = kControls,
                                                .menu = kMenu,
                                                .resizable = true};

constexpr controls::WindowLayout kPlainLayout = {
    .name = "plain", .caption = "Plain", .place = {900, 900, 6200, 3500}, .controls = kControls};

}  // namespace

const controls::WindowLayout& testLayout() {
  return kTestLayout;
}

const controls::WindowLayout& plainLayout() {
  return kPlainLayout;
}

ContractTest::ContractTest()
    : kind_(makeKind()),
      window_(kind_->desktop().createWindow(kTestLayout)),
      first_(window_->textBox("first")),
      second_(window_->textBox("second")),
      tape_(window_->textBox("tape")),
      button_(window_->button("button")),
      toggle_(window_->toggleButton("toggle")) {
  show(*window_);
}

void ContractTest::show(controls::Window& window) {
  window.show();
  kind_->settle();
}

void ContractTest::focus(controls::Control& control) {
  control.setFocus();
  kind_->settle();
}

void ContractTest::type(std::string_view text) {
  for (const char16_t character : common::toUtf16(text)) {
    driver::Stroke stroke = driver::strokeOf(character);
    if (character == '\b') stroke = driver::strokeNamed("Backspace");
    if (character == '\r') stroke = driver::strokeNamed("Enter");
    kind_->press(stroke.key, stroke.character);
  }
}

void ContractTest::press(controls::KeyCode key, controls::KeyAscii character) {
  kind_->press({.key = key}, character);
}

void ContractTest::pressControl(char letter) {
  kind_->press({.key = letter, .control = true}, letter - 'A' + 1);
}

void ContractTest::paste(controls::TextBox& box, std::string_view text) {
  ASSERT_TRUE(kind_->desktop().setClipboardText(text));
  box.paste();
}

void ContractTest::put(controls::TextBox& box, std::string_view text, int caret, int selected) {
  box.setText(text);
  box.select(caret, selected);
  takeLog();
}

std::string ContractTest::shown(const controls::TextBox& box) {
  return box.text() + " " + std::to_string(box.selStart()) + "+" + std::to_string(box.selLength());
}

std::vector<std::string> ContractTest::takeLog() {
  return std::exchange(log_, {});
}

}  // namespace contract
