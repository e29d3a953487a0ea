#include <algorithm>
#include <string>
#include <vector>

#include "appearance/appearance_test_base.h"
#include "shell/frm_calc_layout.h"
#include "win32/fonts.h"
#include "win32/ruler.h"
#include "win32/text.h"

// What is drawn on every key: each face is compared with a picture of the same letters, symbol or
// icon.
namespace appearance {
namespace {

struct Face {
  std::string key;
  std::wstring text;
  controls::FontLayout font;
};

// What each key of the main window shows: its face, or else its caption.
std::vector<Face> faces() {
  std::vector<Face> faces;
  for (const auto& key : shell::frmCalcLayout().controls)
    if (key.kind == controls::ControlKind::Button ||
        key.kind == controls::ControlKind::ToggleButton)
      faces.push_back({std::string(key.name),
                       win32::wide(key.face.empty() ? key.caption : key.face), key.font});
  return faces;
}

struct Icon {
  const char* key;
  const wchar_t* resource;
};

constexpr Icon kIcons[] = {
    {"cmdRotateLabels", L"KEY_ROTATE"},
    {"cmdClearAll", L"KEY_CLEAR"},
    {"cmdHelp", L"KEY_HELP"},
    {"cmdPrintToTape", L"KEY_PRINT"},
};

/// The part of a picture that differs from its background, cropped.
struct Shape {
  int width = 0;
  int height = 0;
  std::vector<bool> inked;
};

Shape shapeIn(const Picture& picture, const RECT& part) {
  constexpr double kInk = 2;
  const COLORREF background = picture.at(part.left, part.top);
  const auto isInked = [&](int x, int y) { return contrast(picture.at(x, y), background) >= kInk; };
  RECT edges = {part.right, part.bottom, part.left, part.top};
  for (int y = part.top; y < part.bottom; ++y) {
    for (int x = part.left; x < part.right; ++x) {
      if (!isInked(x, y)) continue;
      edges = {std::min<LONG>(edges.left, x), std::min<LONG>(edges.top, y),
               std::max<LONG>(edges.right, x + 1), std::max<LONG>(edges.bottom, y + 1)};
    }
  }
  if (edges.left >= edges.right) return {};
  Shape shape = {edges.right - edges.left, edges.bottom - edges.top, {}};
  for (int y = edges.top; y < edges.bottom; ++y)
    for (int x = edges.left; x < edges.right; ++x) shape.inked.push_back(isInked(x, y));
  return shape;
}

/// The shape of what `draw` draws into the middle of an area as large as a key.
template <class Draw>
Shape shapeDrawn(SIZE size, COLORREF background, const Draw& draw) {
  const HDC screen = GetDC(nullptr);
  const HDC context = CreateCompatibleDC(screen);
  const HBITMAP bitmap = CreateCompatibleBitmap(screen, size.cx, size.cy);
  const HGDIOBJ before = SelectObject(context, bitmap);
  RECT all = {0, 0, size.cx, size.cy};
  const HBRUSH brush = CreateSolidBrush(background);
  FillRect(context, &all, brush);
  DeleteObject(brush);
  draw(context, all);
  const Picture picture(context, size);
  SelectObject(context, before);
  DeleteObject(bitmap);
  DeleteDC(context);
  ReleaseDC(nullptr, screen);
  return shapeIn(picture, all);
}

Shape lettersDrawn(SIZE size, COLORREF background, COLORREF ink, HFONT font,
                   const std::wstring& text) {
  return shapeDrawn(size, background, [&](HDC context, RECT area) {
    const HGDIOBJ before = SelectObject(context, font);
    SetBkMode(context, TRANSPARENT);
    SetTextColor(context, ink);
    DrawTextW(context, text.c_str(), -1, &area, DT_CENTER);
    SelectObject(context, before);
  });
}

Shape iconDrawn(SIZE size, COLORREF background, const wchar_t* resource) {
  constexpr int kSize = 32;
  return shapeDrawn(size, background, [&](HDC context, const RECT&) {
    const auto icon = static_cast<HICON>(
        LoadImageW(GetModuleHandleW(nullptr), resource, IMAGE_ICON, kSize, kSize, LR_DEFAULTCOLOR));
    DrawIconEx(context, 2, 2, icon, kSize, kSize, 0, nullptr, DI_NORMAL);
    DestroyIcon(icon);
  });
}

/// The percentage of pixels in which two shapes agree.
int agreement(const Shape& seen, const Shape& wanted) {
  if (seen.width != wanted.width || seen.height != wanted.height || seen.inked.empty()) return 0;
  std::size_t same = 0;
  for (std::size_t i = 0; i < seen.inked.size(); ++i)
    if (seen.inked[i] == wanted.inked[i]) ++same;
  return static_cast<int>(same * 100 / seen.inked.size());
}

bool hasEveryGlyph(HFONT font, std::wstring text) {
  std::erase(text, L'\n');
  std::erase(text, L'&');
  const win32::Ruler ruler(font);
  std::vector<WORD> glyphs(text.size());
  GetGlyphIndicesW(ruler.context(), text.c_str(), static_cast<int>(text.size()), glyphs.data(),
                   GGI_MARK_NONEXISTING_GLYPHS);
  return std::find(glyphs.begin(), glyphs.end(), 0xFFFF) == glyphs.end();
}

class KeyFaces : public AppearanceTest {
 protected:
  void SetUp() override {
    AppearanceTest::SetUp();
    // Shows the underlines of access keys.
    SendMessageW(window("frmCalc"), WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEACCEL), 0);
  }

  /// The face of a key, without its frame.
  static Shape shapeOn(const Picture& picture) { return shapeIn(picture, inside(picture)); }
  static COLORREF backgroundOf(const Picture& picture) {
    return picture.at(inside(picture).left, inside(picture).top);
  }
  static COLORREF inkOf(const Picture& picture) {
    const COLORREF background = backgroundOf(picture);
    COLORREF ink = background;
    const RECT part = inside(picture);
    for (int y = part.top; y < part.bottom; ++y)
      for (int x = part.left; x < part.right; ++x)
        if (contrast(picture.at(x, y), background) > contrast(ink, background))
          ink = picture.at(x, y);
    return ink;
  }
  static RECT inside(const Picture& picture) {
    constexpr int kFrame = 3;
    return {kFrame, kFrame, picture.width() - kFrame, picture.height() - kFrame};
  }
};

TEST_F(KeyFaces, LettersAndSymbolsAreThoseOfTheKey) {
  tell("press Ctrl+T");
  for (const Face& face : faces()) {
    const HWND key = control("frmCalc", face.key);
    win32::Fonts fonts(win32::Scale::of(key));
    const HFONT font = fonts.fontShowing(face.font, face.text);
    EXPECT_TRUE(hasEveryGlyph(font, face.text)) << face.key;
    const Picture picture(key);
    const SIZE size = {picture.width(), picture.height()};
    const Shape wanted = lettersDrawn(size, backgroundOf(picture), inkOf(picture), font, face.text);
    EXPECT_GE(agreement(shapeOn(picture), wanted), 98) << face.key;
  }
}

TEST_F(KeyFaces, NoTwoLookAlike) {
  tell("press Ctrl+T");
  std::vector<Shape> shapes;
  const std::vector<Face> keys = faces();
  for (const Face& face : keys) shapes.push_back(shapeOn(Picture(control("frmCalc", face.key))));
  for (std::size_t one = 0; one < shapes.size(); ++one)
    for (std::size_t other = one + 1; other < shapes.size(); ++other)
      EXPECT_LT(agreement(shapes[one], shapes[other]), 98)
          << keys[one].key << " and " << keys[other].key;
}

TEST_F(KeyFaces, PictureButtonsShowTheirIcons) {
  openAnsweredLoan();
  for (const Icon& icon : kIcons) {
    const Picture picture(control("frmAnnuity", icon.key));
    const SIZE size = {picture.width(), picture.height()};
    const Shape wanted = iconDrawn(size, backgroundOf(picture), icon.resource);
    EXPECT_GE(agreement(shapeOn(picture), wanted), 98) << icon.key;
  }
}

}  // namespace
}  // namespace appearance
