#include "win32/tape_ink.h"

namespace win32 {

using controls::LineLook;

TapeInk TapeInk::on(COLORREF background, COLORREF text) {
  constexpr COLORREF kRed = RGB(0xC0, 0x14, 0x14);
  constexpr COLORREF kGrey = RGB(0x70, 0x70, 0x70);
  if (hasOwnContrast()) return {background, text, text, text, false};
  return {background, text, legibleOn(background, kRed), legibleOn(background, kGrey), true};
}

COLORREF TapeInk::of(LineLook look) const {
  switch (look) {
    case LineLook::TakenOff:
    case LineLook::NegativeTotal:
      return takenOff;
    case LineLook::Note:
      return note;
    default:
      return plain;
  }
}

}  // namespace win32
