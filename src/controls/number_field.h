#pragma once

#include <string_view>

#include "controls/text_box.h"

namespace controls {

/// A text box that holds a number while it is keyed: the sign stands in front, separators come and
/// go by themselves, and the caret stays behind the character behind which it was, never in front
/// of the sign. Whatever leaves the text as it is touches neither caret nor selection.
class NumberField {
 public:
  explicit NumberField(TextBox& box) : box_(box) {}

  /// Puts another text in the place of the present one, with the caret at `caret`.
  void rewrite(std::string_view text, int caret);
  /// Puts the same number in another form: the caret keeps its distance from the end.
  void reformat(std::string_view text);
  /// Before Backspace: right behind a separator it takes the digit in front of the separator.
  void stepOverSeparator();
  /// A character in front of the only sign gives way to it.
  void repairSign();
  void dropLeadingCommas();
  /// Separators that have come to stand behind the point were not typed.
  void dropSeparatorsBehindPoint();

 private:
  void dropFirstCharacter();

  TextBox& box_;
};

}  // namespace controls
