#pragma once

#include <string_view>

#include "controls/text_box.h"

namespace controls {

/// A text box in which a number is keyed: the sign comes first, separators come and go
/// automatically, and the caret stays after the character that it followed, never before the sign.
/// An operation that does not change the text leaves caret and selection alone.
class NumberField {
 public:
  explicit NumberField(TextBox& box) : box_(box) {}

  /// Replaces the text and places the caret at `caret`.
  void rewrite(std::string_view text, int caret);
  /// Replaces the text by another form of the same number; the caret keeps its distance from the
  /// end.
  void reformat(std::string_view text);
  /// Call before Backspace takes effect: after a separator, it deletes the digit before the
  /// separator.
  void stepOverSeparator();
  /// Removes a character before the only sign.
  void repairSign();
  void dropLeadingCommas();
  /// Removes separators that have ended up after the point; they were not typed.
  void dropSeparatorsBehindPoint();

 private:
  void dropFirstCharacter();

  TextBox& box_;
};

}  // namespace controls
