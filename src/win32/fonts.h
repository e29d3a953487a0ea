#pragma once

#include <map>
#include <string>
#include <string_view>
#include <tuple>

#include "controls/layout.h"
#include "win32/handles.h"
#include "win32/scale.h"

namespace win32 {

/// The fonts of a window at a resolution.
class Fonts {
 public:
  explicit Fonts(const Scale& scale) : scale_(scale) {}

  /// The font of a layout, owned by this object.
  HFONT font(const controls::FontLayout& layout) { return font(layout, layout.name); }
  /// The same if it has the characters of the text, otherwise the first other face that has.
  HFONT fontShowing(const controls::FontLayout& layout, const std::wstring& text);
  /// A font of its caller's, of the layout's face, so many pixels high.
  OwnedFont make(const controls::FontLayout& layout, int height, bool bold) const {
    return make(layout.name, height, scale_.toPixels(layout.characterWidth), bold);
  }
  /// How many pixels high a layout's font is.
  int heightOf(const controls::FontLayout& layout) const {
    return -scale_.fontHeight(layout.tenthsOfPoint);
  }

 private:
  HFONT font(const controls::FontLayout& layout, std::string_view face);
  static OwnedFont make(std::string_view face, int height, int width, bool bold);

  Scale scale_;
  std::map<std::tuple<std::string, int, bool, int>, OwnedFont> fonts_;
};

}  // namespace win32
