#include "win32/fitted_text.h"

#include "win32/ruler.h"

namespace win32 {

HFONT fittedFont(Fonts& fonts, const Scale& scale, const controls::FontLayout& layout,
                 const std::wstring& text, int room) {
  HFONT font = fonts.font(layout);
  controls::FontLayout narrower = layout;
  for (int letter = Ruler(font).metrics().tmAveCharWidth - 1;
       letter > 0 && Ruler(font).widthOf(text) > room; --letter) {
    narrower.characterWidth = scale.toTwips(letter);
    font = fonts.font(narrower);
  }
  return font;
}

}  // namespace win32
