#pragma once

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>

#include "unit/recording_desktop.h"

namespace controls {

using recording::Log;

inline constexpr Rect kAnyPlace = {0, 0, 900, 300};

inline constexpr auto kTestControls = std::to_array<ControlLayout>({
    {.name = "label", .caption = "&Box:", .place = kAnyPlace},
    {.kind = ControlKind::TextBox, .name = "box", .place = kAnyPlace},
    {.kind = ControlKind::TextBox, .name = "same", .place = kAnyPlace},
    {.kind = ControlKind::Button, .name = "button", .caption = "&Go", .place = kAnyPlace},
    {.kind = ControlKind::Button, .name = "cancel", .place = kAnyPlace, .cancel = true},
    {.kind = ControlKind::ToggleButton, .name = "toggle", .place = kAnyPlace},
    {.kind = ControlKind::OptionButton,
     .name = "one",
     .place = kAnyPlace,
     .optionGroup = 1,
     .chosen = true},
    {.kind = ControlKind::OptionButton, .name = "two", .place = kAnyPlace, .optionGroup = 1},
    {.kind = ControlKind::OptionButton,
     .name = "alone",
     .place = kAnyPlace,
     .optionGroup = 2,
     .chosen = true},
    {.kind = ControlKind::Frame, .name = "frame", .place = {0, 900, 900, 900}},
    {.name = "end", .caption = "&End", .place = kAnyPlace},
});

inline constexpr auto kTestMenu = std::to_array<MenuItemLayout>({
    {0, "mnuFile", "&File"},
    {1, "mnuSave", "&Save", "Ctrl+S", true},
    {1, "mnuLine", "-"},
    {1, "mnuMore", "&More"},
    {2, "mnuDeep", "&Deep", "Ctrl+D"},
    {1, "mnuExit", "E&xit"},
    {0, "mnuEdit", "&Edit"},
    {1, "mnuCut", "Cu&t"},
});

inline constexpr WindowLayout kTestLayout = {.name = "window",
                                             .caption = "Window",
                                             .place = {300, 400, 3000, 2000},
                                             .controls = kTestControls,
                                             .menu = kTestMenu};
inline constexpr WindowLayout kOtherLayout = {.name = "other",
                                              .caption = "Other",
                                              .place = {600, 700, 3000, 2000},
                                              .controls = kTestControls};

/// A desktop without a screen, with a window in front, and one that has not been shown yet.
class ControlsTest : public testing::Test {
 protected:
  ControlsTest() {
    window_->show();
    takeLog();
  }

  std::function<void()> noting(const std::string& event) {
    return [this, event] { desktop_.note(event); };
  }
  Log takeLog() { return desktop_.takeLog(); }
  const std::string& focused() const { return window_->focusedControl()->name(); }

  recording::Desktop desktop_;
  std::unique_ptr<Window> window_ = desktop_.createWindow(kTestLayout);
  std::unique_ptr<Window> other_ = desktop_.createWindow(kOtherLayout);
  TextBox& box_ = window_->textBox("box");
  Button& button_ = window_->button("button");
};

}  // namespace controls
