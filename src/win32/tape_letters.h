#pragma once

#include <windows.h>

#include <string_view>

#include "controls/layout.h"
#include "win32/fonts.h"
#include "win32/handles.h"

namespace win32 {

/// The font of a multi-line text: its size, the position of each character in a line, and how lines
/// are drawn. Supports tab stops, and lines longer than the system can measure and draw at once.
class TapeLetters {
 public:
  /// Scales the font so that `columns` characters fill the width, in pixels: one to three times its
  /// designed size, or exactly that with 0 columns.
  void fit(const Fonts& fonts, const controls::FontLayout& font, int columns, int width);

  HFONT font() const { return regular_.get(); }
  /// The width of a digit.
  int cell() const { return cell_; }
  /// The distance from one line to the next.
  int lineHeight() const { return lineHeight_; }
  /// The space above the text of a line.
  int spaceAbove() const { return spaceAbove_; }

  /// The distance from the start of a line to one of its characters.
  int leftOf(std::wstring_view line, std::size_t character) const;
  int widthOf(std::wstring_view line) const { return leftOf(line, line.size()); }
  /// How many characters of a line are more than half to the left of a position.
  std::size_t charactersBefore(std::wstring_view line, int x) const;

  /// Draws the part of the line within `area`, in the colors of the context. Normal and bold
  /// characters have the same positions.
  void draw(HDC context, POINT start, const RECT& area, std::wstring_view line, bool bold) const;

 private:
  // A part of a line that is measured and drawn at once.
  struct Piece {
    std::size_t start;
    std::wstring_view text;
    int left;
    int width;
  };

  void setHeight(const Fonts& fonts, const controls::FontLayout& font, int height);
  int cellAt(const Fonts& fonts, const controls::FontLayout& font, int height) const;
  template <class Visit>
  void eachPiece(std::wstring_view line, const Visit& visit) const;
  bool standsInCells(std::wstring_view text) const;
  int widthOfPiece(std::wstring_view text) const;
  std::size_t charactersBefore(const Piece& piece, int x) const;

  OwnedFont regular_;
  OwnedFont bold_;
  int height_ = 0;
  int cell_ = 1;
  int lineHeight_ = 1;
  int spaceAbove_ = 0;
  bool fixedPitch_ = false;
};

}  // namespace win32
