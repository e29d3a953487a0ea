#include "win32/tape_ink.h"

namespace win32 {

using controls::LineStyle;

TapeInk TapeInk::on(COLORREF background, COLORREF text) {
  constexpr COLORREF kRed = RGB(0xC0, 0x14, 0x14);
  constexpr COLORREF kGrey = RGB(0x70, 0x70, 0x70);
  if (hasOwnContrast()) return {background, text, text, text, false};
  return {background, text, legibleOn(background, kRed), legibleOn(background, kGrey), true};
}

COLORREF TapeInk::of(LineStyle style) const {
  switch (style) {
    case LineStyle::TakenOff:
    case LineStyle::NegativeTotal:
      return takenOff;
    case LineStyle::Note:
      return note;
    default:
      return plain;
  }
}

}  // namespace win32
