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

 private:
  HFONT font(const controls::FontLayout& layout, std::string_view face);

  Scale scale_;
  std::map<std::tuple<std::string, int, bool, int>, OwnedFont> fonts_;
};

}  // namespace win32
