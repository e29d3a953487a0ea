#pragma once

#include <windows.h>

#include "controls/layout.h"
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
  explicit TapeView(HWND window) : window_(window) {}

  const TapeLines& lines() const { return lines_; }
  int caret() const { return caret_; }
  int anchor() const { return anchor_; }
  int selectionStart() const { return caret_ < anchor_ ? caret_ : anchor_; }
  int selectionEnd() const { return caret_ < anchor_ ? anchor_ : caret_; }
  int firstLine() const { return firstLine_; }

  void replace(int start, int length, std::wstring_view text);
  /// Selects from the anchor to the caret and brings the caret into view.
  void select(int anchor, int caret);
  void setAlignment(controls::Alignment alignment);
  void setFont(HFONT font);
  HFONT font() const { return font_; }
  void setColors(COLORREF background, COLORREF text);

  /// The window has another size.
  void resize();
  void scrollTo(int firstLine);
  void takeScrollBar(int action);
  int linesInView() const;

  /// The place in the text at a place of the window, and back.
  int placeAt(POINT point) const;
  POINT pointOf(int place) const;

  void paint(HDC context, const RECT& damaged) const;
  void showCaret();
  void hideCaret();
  bool hasCaret() const { return hasCaret_; }

 private:
  // What the scroll bar shows.
  struct ScrollBar {
    bool always = true;
    int last = -1;
    int page = 0;
    int position = 0;

    bool operator==(const ScrollBar&) const = default;
  };

  void refresh();
  void bringCaretIntoView();
  void updateScrollBar();
  void placeCaret() const;
  int widthOf(std::wstring_view text) const;
  int leftOf(int line) const;
  RECT clientArea() const;
  void paintLine(HDC context, int line, const RECT& area) const;

  HWND window_;
  TapeLines lines_;
  // The selection lies between the two; the caret is the end that moves.
  int anchor_ = 0;
  int caret_ = 0;
  int firstLine_ = 0;
  // How far the lines are drawn to the left of their place, so that the caret is in view.
  int shift_ = 0;
  controls::Alignment alignment_ = controls::Alignment::Left;
  HFONT font_ = nullptr;
  int lineHeight_ = 1;
  COLORREF background_ = 0;
  COLORREF textColor_ = 0;
  bool hasCaret_ = false;
  ScrollBar scrollBar_;
};

}  // namespace win32
