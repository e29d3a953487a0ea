#pragma once

#include <string>

#include "appearance/appearance_test_base.h"

namespace appearance {

/// The tape of the main window.
class TapeAppearanceTest : public AppearanceTest {
 protected:
  HWND paper() { return control("frmCalc", "txtTape"); }
  LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageW(paper(), message, wParam, lParam);
  }
  void resizeWindow(int width, int height = 3525) {
    tell("resize frmCalc " + std::to_string(width) + " " + std::to_string(height));
  }
  /// Sets the text of the tape by a message, with the caret at its start.
  void write(const std::wstring& text) {
    send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
    send(EM_SETSEL, 0, 0);
  }
  POINT pointOf(int place) {
    const LRESULT point = send(EM_POSFROMCHAR, static_cast<WPARAM>(place));
    return {static_cast<short>(LOWORD(point)), static_cast<short>(HIWORD(point))};
  }
  int placeAt(POINT point) {
    return static_cast<short>(LOWORD(send(EM_CHARFROMPOS, 0, MAKELPARAM(point.x, point.y))));
  }
  int start(int line) { return static_cast<int>(send(EM_LINEINDEX, static_cast<WPARAM>(line))); }
  int cell() { return static_cast<int>(pointOf(1).x - pointOf(0).x); }
  int lineHeight() { return static_cast<int>(pointOf(start(1)).y - pointOf(start(0)).y); }
  /// The area of a visible line in the window.
  RECT areaOf(int line) {
    const int top = static_cast<int>(pointOf(start(line)).y);
    return {0, top, clientSize(paper()).cx, top + lineHeight()};
  }
  int selectionStart() { return static_cast<short>(LOWORD(send(EM_GETSEL))); }
  int selectionEnd() { return static_cast<short>(HIWORD(send(EM_GETSEL))); }
};

}  // namespace appearance
