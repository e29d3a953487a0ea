#include "win32/fonts.h"

#include <algorithm>
#include <array>
#include <vector>

#include "win32/ruler.h"
#include "win32/text.h"

namespace win32 {

using controls::FontLayout;

namespace {

struct Face {
  std::string_view name;
  std::array<const wchar_t*, 3> used;
  BYTE pitchAndFamily;
};

// Layouts use classic face names. Two of these are bitmap fonts, blurred or too small at other
// resolutions, so the first available scalable face of similar proportions is used. If the system
// has none of them, the pitch still makes it choose a face whose digits line up.
constexpr std::array kFaces = {
    Face{"MS Sans Serif", {L"Tahoma", L"Segoe UI", L"Arial"}, VARIABLE_PITCH | FF_SWISS},
    Face{"Terminal", {L"Lucida Console", L"Consolas", L"Courier New"}, FIXED_PITCH | FF_MODERN},
    Face{"Courier New", {L"Courier New", L"Consolas", L"Lucida Console"}, FIXED_PITCH | FF_MODERN},
};

// Faces that have the symbols of the keys.
constexpr std::array<std::string_view, 4> kSymbolFaces = {"Segoe UI Symbol", "Segoe UI", "Arial",
                                                          "Courier New"};

HFONT createFont(int height, int width, bool bold, const wchar_t* face, BYTE pitchAndFamily) {
  return CreateFontW(height, width, 0, 0, bold ? FW_BOLD : FW_NORMAL, FALSE, FALSE, FALSE,
                     DEFAULT_CHARSET, OUT_TT_ONLY_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                     pitchAndFamily, face);
}

bool canShow(HFONT font, const std::wstring& text) {
  const Ruler ruler(font);
  std::vector<WORD> glyphs(text.size());
  GetGlyphIndicesW(ruler.context(), text.c_str(), static_cast<int>(text.size()), glyphs.data(),
                   GGI_MARK_NONEXISTING_GLYPHS);
  return std::find(glyphs.begin(), glyphs.end(), 0xFFFF) == glyphs.end();
}

// Without the face, the system substitutes another.
bool isMadeFrom(HFONT font, const wchar_t* face) {
  const Ruler ruler(font);
  wchar_t name[LF_FACESIZE] = L"";
  GetTextFaceW(ruler.context(), LF_FACESIZE, name);
  return lstrcmpiW(name, face) == 0;
}

}  // namespace

HFONT Fonts::font(const FontLayout& layout, std::string_view face) {
  OwnedFont& font =
      fonts_[{std::string(face), layout.tenthsOfPoint, layout.bold, layout.characterWidth}];
  if (!font)
    font = make(face, heightOf(layout), scale_.toPixels(layout.characterWidth), layout.bold);
  return font.get();
}

OwnedFont Fonts::make(std::string_view face, int height, int width, bool bold) {
  const auto known = std::find_if(kFaces.begin(), kFaces.end(),
                                  [face](const Face& entry) { return entry.name == face; });
  if (known == kFaces.end())
    return OwnedFont(createFont(-height, width, bold, wide(face).c_str(), DEFAULT_PITCH));
  OwnedFont font;
  for (const wchar_t* used : known->used) {
    font.reset(createFont(-height, width, bold, used, known->pitchAndFamily));
    if (isMadeFrom(font.get(), used)) break;
  }
  return font;
}

HFONT Fonts::fontShowing(const FontLayout& layout, const std::wstring& text) {
  std::wstring visible = text;
  std::erase(visible, L'\n');
  const HFONT wanted = font(layout);
  if (canShow(wanted, visible)) return wanted;
  for (const std::string_view face : kSymbolFaces) {
    const HFONT other = font(layout, face);
    if (canShow(other, visible)) return other;
  }
  return wanted;
}

}  // namespace win32
