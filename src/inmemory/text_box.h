#pragma once

#include <optional>
#include <string>

#include "controls/text_box.h"

namespace inmemory {

/// A text box without a screen.
class TextBox : public controls::TextBox {
 public:
  using controls::TextBox::TextBox;

  /// A key without a character, which edits or moves the caret.
  void pressKey(const controls::KeyStroke& stroke);

 protected:
  std::string loadText() const override;
  int loadLength() const override { return static_cast<int>(text_.size()); }
  std::string loadPart(int start, int length) const override;
  Selection loadSelection() const override;
  void storeText(std::string_view text) override;
  void storeAppended(std::string_view text) override;
  void storeSelection(int start, int length) override;
  void storePart(int start, int length, std::string_view text) override;

 private:
  // The column that moves from line to line keep as long as the caret stays where they left it.
  struct Goal {
    int caret;
    int column;
  };

  void moveCaret(int caret, bool extend);
  int caretAfter(controls::KeyCode key);
  int lineStart(int place) const;
  int lineEnd(int place) const;
  bool isLastLine(int place) const;
  int nextLine(int place) const;
  int otherLine(bool up);
  int column() const;

  std::u16string text_;
  // The selection is between the two; the arrows move the caret.
  int anchor_ = 0;
  int caret_ = 0;
  std::optional<Goal> goal_;
};

}  // namespace inmemory
