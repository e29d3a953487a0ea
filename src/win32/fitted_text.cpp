#include "win32/fitted_text.h"

#include "win32/ruler.h"

namespace win32 {
namespace {

int widthOf(HFONT font, const std::wstring& text) {
  const Ruler ruler(font);
  SIZE size = {};
  GetTextExtentPoint32W(ruler.context(), text.c_str(), static_cast<int>(text.size()), &size);
  return size.cx;
}

int letterWidth(HFONT font) {
  const Ruler ruler(font);
  TEXTMETRICW metrics = {};
  GetTextMetricsW(ruler.context(), &metrics);
  return metrics.tmAveCharWidth;
}

}  // namespace

HFONT fittedFont(Fonts& fonts, const Scale& scale, const controls::FontLayout& layout,
                 const std::wstring& text, int room) {
  HFONT font = fonts.font(layout);
  controls::FontLayout narrower = layout;
  for (int letter = letterWidth(font) - 1; letter > 0 && widthOf(font, text) > room; --letter) {
    narrower.characterWidth = scale.toTwips(letter);
    font = fonts.font(narrower);
  }
  return font;
}

}  // namespace win32
