#pragma once

#include <span>
#include <string_view>

#include "controls/geometry.h"

namespace controls {

enum class ControlKind { Label, Frame, TextBox, Button, ToggleButton, OptionButton };
enum class Alignment { Left, Right };

/// A font by the name that the design gives it; sizes in tenths of a point.
struct FontLayout {
  std::string_view name = "MS Sans Serif";
  int tenthsOfPoint = 83;
  bool bold = false;
  /// The average width of its characters, in twips; 0 leaves it to the font.
  Twips characterWidth = 0;
};

/// One control of a window, as it is designed. What a kind has no use for stays at its default.
struct ControlLayout {
  ControlKind kind = ControlKind::Label;
  std::string_view name;
  std::string_view caption = "";
  std::string_view toolTip = "";
  Rect place;
  /// Place in the order of the Tab key; controls of equal index follow each other as listed.
  int tabIndex = 0;
  FontLayout font = {};
  /// What a key shows where its caption says nothing: a symbol or a short word.
  std::string_view face = "";
  /// What a screen reader says where caption and face do not. Of a key with a caption, with &
  /// before the same letter.
  std::string_view accessibleName = "";
  /// A picture button: the name of its icon.
  std::string_view icon = "";
  Alignment alignment = Alignment::Left;
  bool multiLine = false;
  /// Option buttons with the same number exclude each other.
  int optionGroup = 0;
  /// The option button of its group that is chosen at first.
  bool chosen = false;
  /// The button that Escape presses.
  bool cancel = false;
};

/// One item of a window's menu. An item with items of a deeper level behind it is a menu.
struct MenuItemLayout {
  int level = 0;
  std::string_view name;
  /// "-" is a separator.
  std::string_view caption;
  /// "Ctrl+X", or empty.
  std::string_view shortcut = "";
  bool checked = false;
};

struct WindowLayout {
  std::string_view name;
  std::string_view caption;
  Rect place;
  std::span<const ControlLayout> controls;
  std::span<const MenuItemLayout> menu = {};
  bool resizable = false;
  /// The user cannot drag the window smaller.
  Twips smallestWidth = kFrameWidth;
  Twips smallestHeight = kFrameHeight;

  /// What the window is higher than its client area.
  Twips frameHeight() const { return menu.empty() ? kFrameHeight : kFrameHeightWithMenu; }
};

}  // namespace controls
