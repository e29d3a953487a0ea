#pragma once

#include <windows.h>

#include <functional>
#include <string_view>

#include "controls/text_box.h"
#include "win32/tape_ink.h"
#include "win32/tape_letters.h"
#include "win32/tape_lines.h"

namespace win32 {

/// What is seen of a text of many lines: which of its lines are in view, where each character
/// stands, its selection and its caret. The window that it is drawn in is the tape's.
///
/// The system's own boxes do not serve: the plain one takes longer for each line the more lines it
/// holds and keeps the alignment that it was made with; the rich one counts a line end as one
/// character, takes seconds to minutes for a long text, and costs a library at every start.
class TapeView {
 public:
  using StyleOfLine = std::function<controls::LineStyle(std::wstring_view)>;

  TapeView(HWND window, StyleOfLine styleOfLine)
      : window_(window), styleOfLine_(std::move(styleOfLine)) {}

  const TapeLines& lines() const { return lines_; }
  int caret() const { return caret_; }
  int anchor() const { return anchor_; }
  int selectionStart() const { return caret_ < anchor_ ? caret_ : anchor_; }
  int selectionEnd() const { return caret_ < anchor_ ? anchor_ : caret_; }
  int firstLine() const { return firstLine_; }
  /// How far the lines are scrolled to the left, in pixels.
  int shift() const { return shift_; }

  void replace(int start, int length, std::wstring_view text);
  /// Selects from the anchor to the caret and brings the caret into view.
  void select(int anchor, int caret);
  void setAlignment(controls::Alignment alignment);
  void setColors(COLORREF background, COLORREF text);
  /// Scales the font so that `columns` characters fill the width beside the scroll bar.
  void fitLetters(const Fonts& fonts, const controls::FontLayout& font, int columns, int width);
  HFONT font() const { return letters_.font(); }

  /// The size of the window has changed.
  void resize();
  void scrollTo(int firstLine);
  /// Scrolls by this many columns, to the right if positive.
  void scrollSideways(int columns);
  /// The user has operated a scroll bar.
  void takeScrollBar(int bar, int action);
  int linesInView() const;
  void bringCaretIntoView();

  /// Converts a position in the window to a position in the text, and back.
  int placeAt(POINT point) const;
  POINT pointOf(int place) const;
  /// The area of the text, within the margins.
  RECT textArea() const;

  void paint(HDC context, const RECT& damaged) const;
  void showCaret();
  void hideCaret();

 private:
  // The state of a scroll bar.
  struct ScrollBar {
    bool always = false;
    int last = -1;
    int page = 0;
    int position = 0;

    bool operator==(const ScrollBar&) const = default;
  };

  static constexpr int kCaretWidth = 1;

  void refresh();
  void keepInView();
  int lastFirstLine() const;
  int overflow() const;
  bool needsSidewaysBar() const;
  void shiftTo(int shift);
  void updateScrollBars();
  void updateScrollBar(int bar, ScrollBar& shown, const ScrollBar& wanted);
  void placeCaret() const;
  int leftOf(int line) const;
  RECT clientArea() const;
  controls::LineStyle styleOf(int line) const;
  void paintLine(HDC context, int line, const RECT& area) const;
  void paintSelection(HDC context, int line, const RECT& area) const;
  void paintRule(HDC context, int line, const RECT& area) const;

  HWND window_;
  StyleOfLine styleOfLine_;
  TapeLines lines_;
  TapeLetters letters_;
  TapeInk ink_;
  // The selection is between the two; the caret is the end that moves.
  int anchor_ = 0;
  int caret_ = 0;
  int firstLine_ = 0;
  // The size of the window before it changed.
  int linesBefore_ = 0;
  int shift_ = 0;
  int margin_ = 1;
  // The width of a full line; a longer one can be scrolled horizontally.
  int columns_ = 0;
  controls::Alignment alignment_ = controls::Alignment::Left;
  bool hasCaret_ = false;
  ScrollBar downBar_ = {.always = true};
  ScrollBar sidewaysBar_;
};

}  // namespace win32
