#pragma once

#include <span>
#include <string_view>

#include "controls/geometry.h"

namespace controls {

enum class ControlKind { Label, Frame, TextBox, Button, ToggleButton, OptionButton };
enum class Alignment { Left, Right };

/// What a key does; shown by its color.
enum class KeyKind { Plain, Operator, Strong, Clear, Memory, Toggle };

/// A font by its name in the design, which of most texts is the default; the size is in tenths of a
/// point.
struct FontLayout {
  std::string_view name = "MS Sans Serif";
  int tenthsOfPoint = 83;
  bool bold = false;
  /// The average width of its characters, in twips; 0 leaves it to the font.
  Twips characterWidth = 0;
};

/// One control of a window as designed. A kind ignores the fields that do not apply to it.
struct ControlLayout {
  ControlKind kind = ControlKind::Label;
  std::string_view name;
  std::string_view caption = "";
  std::string_view toolTip = "";
  Rect place;
  FontLayout font = {};
  /// What a key without a caption shows: a symbol or a short word.
  std::string_view face = "";
  /// The name for screen readers where caption and face are not enough. If there is a caption, it
  /// has its & before the same letter.
  std::string_view accessibleName = "";
  /// The accessible name while the key has a color of its own; empty if the color means nothing.
  std::string_view litName = "";
  KeyKind keyKind = KeyKind::Plain;
  /// A label or button that a screen reader reads out whenever its text changes.
  bool spoken = false;
  /// The icon of a picture button.
  std::string_view icon = "";
  Alignment alignment = Alignment::Left;
  bool multiLine = false;
  /// The font of a multi-line box grows until this many characters fill its width, up to three
  /// times the designed size; 0 keeps the designed size.
  int columns = 0;
  /// Option buttons with the same number are mutually exclusive.
  int optionGroup = 0;
  /// The option button of its group that is chosen initially.
  bool chosen = false;
  /// The button that Escape presses.
  bool cancel = false;
};

/// One item of a window's menu. An item followed by items of a deeper level is a menu.
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
  /// In tab order.
  std::span<const ControlLayout> controls;
  std::span<const MenuItemLayout> menu = {};
  bool resizable = false;
  /// The user cannot drag the window smaller.
  Twips smallestWidth = kFrameWidth;
  Twips smallestHeight = kFrameHeight;

  /// How much higher the window counts than its client area.
  Twips frameHeight() const { return menu.empty() ? kFrameHeight : kFrameHeightWithMenu; }
};

}  // namespace controls
