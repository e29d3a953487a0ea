#pragma once

#include <map>
#include <string>
#include <string_view>
#include <tuple>

#include "controls/layout.h"
#include "win32/handles.h"
#include "win32/scale.h"

namespace win32 {

/// The fonts of a window at the resolution of its monitor.
class Fonts {
 public:
  explicit Fonts(const Scale& scale) : scale_(scale) {}

  /// The font that a layout names; it lives as long as this object.
  HFONT font(const controls::FontLayout& layout) { return font(layout, layout.name); }
  /// The same where it can show the text, else the first other face that can.
  HFONT fontShowing(const controls::FontLayout& layout, const std::wstring& text);

 private:
  HFONT font(const controls::FontLayout& layout, std::string_view face);

  Scale scale_;
  std::map<std::tuple<std::string, int, bool, int>, OwnedFont> fonts_;
};

}  // namespace win32
