#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "controls/desktop.h"
#include "controls/number_field.h"
#include "engine/amount.h"
#include "engine/decimals.h"

namespace engine {

/// As many characters as an entry may be typed with, separators and point included.
inline constexpr int kEntryLength = 19;

/// Nothing, or a point alone.
inline bool isBlank(std::string_view entry) {
  return entry.empty() || entry == ".";
}

/// The entry box: the number that it holds, how that came there, what may be typed behind it, and
/// how it is shown.
class Entry {
 public:
  Entry(controls::TextBox& box, const Decimals& decimals, controls::Desktop& desktop)
      : box_(box), field_(box), decimals_(decimals), desktop_(desktop) {}

  std::string text() const { return box_.text(); }
  /// What is typed next begins a new entry.
  bool isResult() const { return use_ != Use::Open; }
  /// The tape shows it already.
  bool isPosted() const { return use_ == Use::Posted; }

  /// Empties the box for a new entry.
  void clear();
  /// Shows a number that was not keyed digit by digit, with the caret behind it.
  void showValue(const std::string& text);
  /// Shows a pasted number, which is written plainly.
  void showPasted(const std::string& text);
  /// Shows the total behind a line that was printed; the box is wide enough for it.
  void showTotal(double total);
  /// What is typed next changes this entry, or begins a new one.
  void keepOpen() { use_ = Use::Open; }
  void takeAsResult() { use_ = Use::Result; }
  /// The next character begins a new entry; a posted one stays posted.
  void finish();

  /// Puts a changed entry in shape for the key that takes it, and gives its text. What is no number
  /// is left for that key to report.
  std::string settle();
  /// The number that the text of the entry represents; nothing, and the error reported, if it
  /// represents none.
  std::optional<Amount> amountIn(const std::string& text) const;
  /// The same for a key that takes the entry: the minus in front of typed zeros waited for digits
  /// that did not come, and goes.
  std::optional<Amount> take(std::string text);
  /// Puts the entry in shape; one that is no number is reported.
  void format();
  /// The same after an edit of the user's.
  void tidy();
  void changeSign();
  void setFocus() { box_.setFocus(); }
  void moveCaretToEnd() { box_.moveCaretToEnd(); }

  /// Whether the character may be typed. One that is typed behind a result empties the box first.
  bool accepts(controls::KeyAscii key);
  /// Before Backspace takes effect.
  void stepOverSeparator() { field_.stepOverSeparator(); }
  /// Puts the entry in shape, unless the key just moved the caret.
  void keyUp(controls::KeyCode key);
  void changed(controls::ChangedBy by);

 private:
  /// How what the box holds came there. Stationary decimal scales digits, and neither a number with
  /// a point of its own nor a value.
  enum class Origin { Digits, PointKeyed, Value, ValueWithPoint };
  /// What becomes of it: it is being keyed, the next character replaces it, or the tape has it too.
  enum class Use { Open, Result, Posted };

  bool isValue() const { return origin_ == Origin::Value || origin_ == Origin::ValueWithPoint; }
  bool hasOwnPoint() const {
    return origin_ == Origin::PointKeyed || origin_ == Origin::ValueWithPoint;
  }
  void takePoint();
  bool acceptsPoint(const std::string& text) const;
  bool acceptsDigit(const std::string& text, char digit) const;
  bool fitsBehindImpliedPoint(const std::string& text, char digit) const;
  bool hasSign(const std::string& text) const;
  void repair();
  /// Raises error 13 when the text cannot be put in shape; then it stays.
  void reformat();
  std::string formatted(std::string text);

  controls::TextBox& box_;
  controls::NumberField field_;
  const Decimals& decimals_;
  controls::Desktop& desktop_;
  Origin origin_ = Origin::Digits;
  Use use_ = Use::Open;
};

}  // namespace engine
