#pragma once

#include <windows.h>

#include <string_view>

#include "controls/layout.h"
#include "win32/fonts.h"
#include "win32/handles.h"

namespace win32 {

/// The letters of a text of many lines: how large they are, where each of a line stands, and how
/// it is drawn. A tab leads to the next stop. Lines may be longer than what the system measures and
/// draws at once.
class TapeLetters {
 public:
  /// Makes the letters as large as lets `columns` of them fill the width, in pixels, from the size
  /// of the font to three times that; at that size with 0 columns.
  void fit(const Fonts& fonts, const controls::FontLayout& font, int columns, int width);

  HFONT font() const { return regular_.get(); }
  /// The width of a figure.
  int cell() const { return cell_; }
  /// From one line to the next.
  int lineHeight() const { return lineHeight_; }
  /// What stands above the letters of a line.
  int spaceAbove() const { return spaceAbove_; }

  /// From the start of a line to one of its characters.
  int leftOf(std::wstring_view line, std::size_t character) const;
  int widthOf(std::wstring_view line) const { return leftOf(line, line.size()); }
  /// How many characters of a line are more than half to the left of a place.
  std::size_t charactersBefore(std::wstring_view line, int x) const;

  /// Draws what of the line is within `area`, in the colours of the context. The letters of both
  /// weights stand in the same places.
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
