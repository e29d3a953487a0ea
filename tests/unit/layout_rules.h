#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "controls/layout.h"

namespace layout_rules {

using controls::Alignment;
using controls::ControlKind;
using controls::ControlLayout;
using controls::Rect;
using controls::Twips;
using controls::WindowLayout;

constexpr ControlKind kBox = ControlKind::TextBox;
constexpr ControlKind kButton = ControlKind::Button;
constexpr ControlKind kFrame = ControlKind::Frame;
constexpr ControlKind kLabel = ControlKind::Label;
constexpr ControlKind kOption = ControlKind::OptionButton;
constexpr ControlKind kToggle = ControlKind::ToggleButton;

constexpr std::string_view kSans = "MS Sans Serif";
constexpr std::string_view kCourier = "Courier New";
constexpr std::string_view kTerminal = "Terminal";

inline Twips right(const Rect& place) {
  return place.left + place.width;
}

inline Twips bottom(const Rect& place) {
  return place.top + place.height;
}

inline bool overlap(const Rect& one, const Rect& other) {
  return one.left < right(other) && other.left < right(one) && one.top < bottom(other) &&
         other.top < bottom(one);
}

inline const Rect& placeOf(const WindowLayout& layout, std::string_view name) {
  const auto found = std::ranges::find(layout.controls, name, &ControlLayout::name);
  if (found == layout.controls.end()) throw std::invalid_argument(std::string(name));
  return found->place;
}

/// All controls are inside the window, and none overlaps another, except a frame its contents.
inline void expectAllInSight(const WindowLayout& layout) {
  const Rect client = {0, 0, layout.place.width - controls::kFrameWidth,
                       layout.place.height - layout.frameHeight()};
  for (const ControlLayout& one : layout.controls) {
    SCOPED_TRACE(one.name);
    EXPECT_GT(one.place.width, 0);
    EXPECT_GT(one.place.height, 0);
    EXPECT_GE(one.place.left, client.left);
    EXPECT_GE(one.place.top, client.top);
    EXPECT_LE(right(one.place), client.width);
    EXPECT_LE(bottom(one.place), client.height);
    for (const ControlLayout& other : layout.controls) {
      if (&one == &other || one.kind == kFrame || other.kind == kFrame) continue;
      EXPECT_FALSE(overlap(one.place, other.place)) << "covers " << other.name;
    }
  }
}

/// Controls in a row: equal tops, and equal gaps between neighbors.
inline void expectRow(const WindowLayout& layout, const std::vector<std::string_view>& names) {
  ASSERT_GE(names.size(), 2U);
  const Rect& first = placeOf(layout, names[0]);
  const Twips gap = placeOf(layout, names[1]).left - right(first);
  EXPECT_GT(gap, 0);
  for (std::size_t i = 1; i < names.size(); ++i) {
    const Rect& place = placeOf(layout, names[i]);
    EXPECT_EQ(place.left - right(placeOf(layout, names[i - 1])), gap) << names[i];
    EXPECT_EQ(place.top, first.top) << names[i];
  }
}

/// Controls in a column: equal left edges and widths, and equal gaps between neighbors.
inline void expectColumn(const WindowLayout& layout, const std::vector<std::string_view>& names) {
  ASSERT_GE(names.size(), 2U);
  const Rect& first = placeOf(layout, names[0]);
  const Twips gap = placeOf(layout, names[1]).top - bottom(first);
  EXPECT_GT(gap, 0);
  for (std::size_t i = 1; i < names.size(); ++i) {
    const Rect& place = placeOf(layout, names[i]);
    EXPECT_EQ(place.top - bottom(placeOf(layout, names[i - 1])), gap) << names[i];
    EXPECT_EQ(place.left, first.left) << names[i];
    EXPECT_EQ(place.width, first.width) << names[i];
  }
}

/// What users and screen readers see of a control.
struct Seen {
  std::string_view name;
  ControlKind kind;
  Twips left;
  Twips top;
  Twips width;
  Twips height;
  std::string_view caption = {};
  std::string_view face = {};
  std::string_view accessibleName = {};
  std::string_view toolTip = {};
  std::string_view font = kSans;
  int tenthsOfPoint = 83;
  bool bold = false;
  Alignment alignment = Alignment::Left;
};

/// The names of the controls for which something holds, in the order of the table.
template <class Condition>
std::vector<std::string_view> namesOf(const WindowLayout& layout, Condition holds) {
  std::vector<std::string_view> names;
  for (const ControlLayout& control : layout.controls)
    if (holds(control)) names.push_back(control.name);
  return names;
}

/// The controls stand where the list says, which is complete.
inline void expectPlaces(const WindowLayout& layout, std::span<const Seen> list) {
  EXPECT_EQ(layout.controls.size(), list.size());
  for (const Seen& seen : list) {
    const Rect place = {seen.left, seen.top, seen.width, seen.height};
    EXPECT_EQ(placeOf(layout, seen.name), place) << seen.name;
  }
}

/// The controls match the list, which is complete and in the same order.
inline void expectSeen(const WindowLayout& layout, std::span<const Seen> list) {
  ASSERT_EQ(layout.controls.size(), list.size());
  auto control = layout.controls.begin();
  for (const Seen& seen : list) {
    SCOPED_TRACE(seen.name);
    EXPECT_EQ(control->name, seen.name);
    EXPECT_EQ(control->kind, seen.kind);
    EXPECT_EQ(control->caption, seen.caption);
    EXPECT_EQ(control->face, seen.face);
    EXPECT_EQ(control->accessibleName, seen.accessibleName);
    EXPECT_EQ(control->toolTip, seen.toolTip);
    EXPECT_EQ(control->font.name, seen.font);
    EXPECT_EQ(control->font.tenthsOfPoint, seen.tenthsOfPoint);
    EXPECT_EQ(control->font.bold, seen.bold);
    EXPECT_EQ(control->alignment, seen.alignment);
    ++control;
  }
}

}  // namespace layout_rules
