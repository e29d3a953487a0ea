#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "controls/desktop.h"
#include "controls/number_field.h"
#include "engine/amount.h"
#include "engine/decimals.h"

namespace engine {

/// The most characters that can be typed into an entry, including separators and point.
inline constexpr int kEntryLength = 19;

/// Whether an entry is empty or only a point.
inline bool isBlank(std::string_view entry) {
  return entry.empty() || entry == ".";
}

/// The entry box: its number, how that was entered, what may be typed next, and how it is
/// formatted.
class Entry {
 public:
  Entry(controls::TextBox& box, const Decimals& decimals, controls::Desktop& desktop)
      : box_(box), field_(box), decimals_(decimals), desktop_(desktop) {}

  std::string text() const { return box_.text(); }
  /// Whether the next character starts a new entry.
  bool isResult() const { return use_ != Use::Open; }
  /// Whether it is on the tape already.
  bool isPosted() const { return use_ == Use::Posted; }

  /// Empties the box for a new entry.
  void clear();
  /// Shows a number that was not keyed digit by digit, with the caret at its end.
  void showValue(const std::string& text);
  /// Shows a pasted number, given in plain notation.
  void showPasted(const std::string& text);
  /// Shows the running total after a posting, and widens the box for a long one.
  void showTotal(double total);
  /// The next character changes this entry, or starts a new one.
  void keepOpen() { use_ = Use::Open; }
  void takeAsResult() { use_ = Use::Result; }
  /// The next character starts a new entry; a posted one stays posted.
  void finish();

  /// Formats a changed entry for the key that uses it, and returns its text. If it is not a number,
  /// that key reports it.
  std::string settle();
  /// The number that the text represents; null, and the error is reported, if it is not a number.
  std::optional<Amount> amountIn(const std::string& text) const;
  /// The same for a key that posts the entry: a minus before zeros is dropped, since no more digits
  /// follow.
  std::optional<Amount> take(std::string text);
  /// Formats the entry; reports it if it is not a number.
  void format();
  /// The same after an edit by the user.
  void tidy();
  void changeSign();
  void setFocus() { box_.setFocus(); }

  /// Whether the character may be typed. After a result, the box is emptied first.
  bool accepts(controls::KeyAscii key);
  /// Call before Backspace takes effect.
  void stepOverSeparator() { field_.stepOverSeparator(); }
  /// Formats the entry unless the key only moved the caret.
  void keyUp(controls::KeyCode key);
  void changed(controls::ChangedBy by);

 private:
  /// How the content was entered. Stationary decimal scales digits, but neither numbers with a
  /// keyed point nor values.
  enum class Origin { Digits, PointKeyed, Value, ValueWithPoint };
  /// Whether it is being keyed, is replaced by the next character, or is also on the tape.
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
  /// Raises error 13 if the text cannot be formatted, and leaves it unchanged.
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
