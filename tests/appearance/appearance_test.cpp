#include <vector>

#include "appearance/appearance_test_base.h"
#include "driver/native_handles.h"
#include "support/kept_state.h"
#include "support/wait.h"
#include "win32/light_icon.h"
#include "win32/text.h"

// At every resolution, nothing is cut off and nothing is misaligned.
namespace appearance {
namespace {

using controls::ControlKind;

/// The text shown on a label or a key.
struct Shown {
  HWND control;
  std::wstring text;
  ControlKind kind;
};

class AppearanceAt : public AppearanceTest, public testing::WithParamInterface<int> {
 protected:
  std::vector<Shown> shownIn(const std::string& name) {
    std::vector<Shown> shown;
    stage().inspect([&] {
      for (const auto& control : stage().findWindow(name)->controls()) {
        const controls::ControlLayout& layout = control->layout();
        const std::string_view text =
            layout.face.empty() ? std::string_view(control->caption()) : layout.face;
        if (control->visible() && !text.empty() && layout.icon.empty())
          shown.push_back({driver::handleOf(*control), win32::wide(text), layout.kind});
      }
    });
    return shown;
  }

  /// The width for the text, beside the frame of a button or the circle of an option.
  int roomIn(const Shown& shown) {
    const LONG width = clientSize(shown.control).cx;
    if (shown.kind == ControlKind::Label) return width;
    const LONG besides = shown.kind == ControlKind::OptionButton ? 20 : 4;
    return width - MulDiv(besides, GetParam(), 96);
  }

  void expectTextsFit(const std::string& name) {
    setResolution(window(name), GetParam());
    const std::vector<Shown> texts = shownIn(name);
    EXPECT_GT(texts.size(), 3U);
    for (const Shown& shown : texts) {
      const int room = roomIn(shown);
      const bool label = shown.kind == ControlKind::Label;
      const SIZE needed = sizeOf(shown.control, shown.text, label ? room : 0);
      EXPECT_LE(needed.cx, room) << win32::narrow(shown.text);
      EXPECT_LE(needed.cy, clientSize(shown.control).cy) << win32::narrow(shown.text);
    }
  }

  /// The digits are vertically centered in the box, to a pixel.
  void expectCentered(HWND box) {
    const TEXTMETRICW metrics = metricsOf(box);
    POINT line = {0, 0};
    ClientToScreen(box, &line);
    const RECT whole = placeOf(box);
    const LONG figuresTop = line.y + metrics.tmInternalLeading - whole.top;
    const LONG figuresBottom = whole.bottom - (line.y + metrics.tmAscent);
    EXPECT_EQ(clientSize(box).cy, metrics.tmHeight);
    EXPECT_NEAR(figuresTop, figuresBottom, 1);
  }

  /// The left edge of a character of the tape.
  static int tapeX(HWND tape, int character) {
    return static_cast<short>(
        LOWORD(SendMessageW(tape, EM_POSFROMCHAR, static_cast<WPARAM>(character), 0)));
  }
};

TEST_P(AppearanceAt, TextsOfTheMainWindowFit) {
  tell("menu mnuWinMode(1)");
  expectTextsFit("frmCalc");
}

TEST_P(AppearanceAt, TextsOfTheFinancialCalculatorFitInEachConfiguration) {
  for (const char* item : {"mnuWinFinCalcLoan", "mnuWinFinCalcInv", "mnuFinCalcStandard"}) {
    SCOPED_TRACE(item);
    tell(std::string("menu ") + item);
    expectTextsFit("frmAnnuity");
  }
}

TEST_P(AppearanceAt, TextsOfTheAboutBoxFit) {
  tell("menu mnuHelpAbout");
  expectTextsFit("frmAbout");
  tell("close frmAbout");
}

TEST_P(AppearanceAt, LargeAnswersFitOnOneLineAndTwoLinesFitTheirPlace) {
  tell("menu mnuWinFinCalcLoan");
  const HWND answer = control("frmAnnuity", "lblAnswer");
  setResolution(window("frmAnnuity"), GetParam());
  EXPECT_LE(sizeOf(answer, L"$ -888,888,888,888,888.88").cx, clientSize(answer).cx);
  EXPECT_LE(sizeOf(answer, L"188  Years\r\n11.88  Months").cy, clientSize(answer).cy);
}

TEST_P(AppearanceAt, DigitsAreVerticallyCentered) {
  tell("menu mnuWinFinCalcLoan");
  setResolution(window("frmCalc"), GetParam());
  setResolution(window("frmAnnuity"), GetParam());
  for (const char* box : {"txtEntry", "txtDec"}) expectCentered(control("frmCalc", box));
  for (const char* box : {"txtNper", "txtRate", "txtPmt", "txtPV", "txtFV"})
    expectCentered(control("frmAnnuity", box));
}

TEST_P(AppearanceAt, EntryBoxIsWideEnoughForItsLongestNumber) {
  const HWND entry = control("frmCalc", "txtEntry");
  setResolution(window("frmCalc"), GetParam());
  constexpr int kCaret = 1;
  EXPECT_LE(sizeOf(entry, L"888,888,888,888,888").cx + kCaret, clientSize(entry).cx);
}

TEST_P(AppearanceAt, PaddedTapeShowsItsHeaderAndTheSignsOfItsAmounts) {
  setResolution(window("frmCalc"), GetParam());
  tell("menu mnuWinPadTape");
  const HWND paper = control("frmCalc", "txtTape");
  constexpr int kHeader = 26;
  EXPECT_LE(tapeX(paper, kHeader), clientSize(paper).cx);
  tell("menu mnuWinMode(0)");
  for (int line = 0; line < 25; ++line) tell("type \"1+\"");
  const std::string text = tape();
  const int sign = static_cast<int>(text.rfind('+'));
  constexpr int kGap = 1;
  EXPECT_LE(tapeX(paper, sign + 1) - kGap, clientSize(paper).cx);
  EXPECT_GT(tapeX(paper, sign), 0);
}

// Outline fonts are sharp at every resolution, and digits of equal width line up in columns.
TEST_P(AppearanceAt, FontsAreOutlinesAndDigitsHaveEqualWidth) {
  setResolution(window("frmCalc"), GetParam());
  for (const char* name : {"txtEntry", "txtDec", "txtTape"}) {
    const BYTE pitch = metricsOf(control("frmCalc", name)).tmPitchAndFamily;
    EXPECT_TRUE(pitch & TMPF_VECTOR) << name;
    EXPECT_FALSE(pitch & TMPF_FIXED_PITCH) << name << ": the flag says that the widths differ";
  }
  for (const Shown& shown : shownIn("frmCalc"))
    EXPECT_TRUE(metricsOf(shown.control).tmPitchAndFamily & TMPF_VECTOR);
}

INSTANTIATE_TEST_SUITE_P(Resolutions, AppearanceAt, testing::ValuesIn(kResolutions),
                         [](const auto& test) { return std::to_string(test.param * 100 / 96); });

class Appearance : public AppearanceTest {
 protected:
  /// Whether two pixels of the box, beside its line of text and within it, get the color in time.
  static bool becomes(HWND box, COLORREF color) {
    constexpr int kWithinEdge = 3;
    const SIZE size = {placeOf(box).right - placeOf(box).left,
                       placeOf(box).bottom - placeOf(box).top};
    return support::eventually([&] {
      const HDC context = GetWindowDC(box);
      const bool seen = GetPixel(context, size.cx - 2 * kWithinEdge, kWithinEdge) == color &&
                        GetPixel(context, size.cx - 2 * kWithinEdge, size.cy / 2) == color;
      ReleaseDC(box, context);
      return seen;
    });
  }
};

TEST_F(Appearance, BoxesFollowAChangeOfTheSystemColorsAtOnce) {
  const HWND box = control("frmCalc", "txtDec");
  const COLORREF before = GetSysColor(COLOR_WINDOW);
  EXPECT_TRUE(becomes(box, before));
  {
    const support::OtherSystemColor window(COLOR_WINDOW, RGB(0, 0, 64));
    EXPECT_TRUE(becomes(box, RGB(0, 0, 64)));
  }
  EXPECT_TRUE(becomes(box, before));
}

TEST_F(Appearance, ScrollBarOfThePlainTapeIsAlwaysVisible) {
  const HWND tape = control("frmCalc", "txtTape");
  EXPECT_TRUE(GetWindowLongW(tape, GWL_STYLE) & WS_VSCROLL);
  const SIZE size = clientSize(tape);
  tell("menu mnuWinPadTape");
  EXPECT_FALSE(GetWindowLongW(tape, GWL_STYLE) & WS_VSCROLL);
  EXPECT_GT(clientSize(tape).cx, size.cx);
  tell("menu mnuWinPadTape");
  EXPECT_TRUE(GetWindowLongW(tape, GWL_STYLE) & WS_VSCROLL);
  EXPECT_EQ(clientSize(tape).cx, size.cx);
}

TEST_F(Appearance, ClickAboveOrBelowTheTextOfABoxIsInsideIt) {
  const HWND entry = control("frmCalc", "txtEntry");
  const RECT box = placeOf(entry);
  const LONG middle = (box.left + box.right) / 2;
  for (const LONG y : {box.top + 2, box.bottom - 3})
    EXPECT_EQ(SendMessageW(entry, WM_NCHITTEST, 0, MAKELPARAM(middle, y)), HTCLIENT);
}

TEST_F(Appearance, IconOnADarkKeyHasLightLines) {
  constexpr int kSide = 16;
  constexpr std::size_t kPixels = std::size_t{kSide} * kSide;
  const std::vector<BYTE> mask(kPixels / 8);
  std::vector<DWORD> picture(kPixels, 0xFF1F3A5F);
  picture[0] = 0xFF2E75B6;
  picture[1] = 0x00000000;
  const win32::OwnedIcon icon(CreateIcon(nullptr, kSide, kSide, 1, 32, mask.data(),
                                         reinterpret_cast<BYTE*>(picture.data())));
  const win32::OwnedIcon light = win32::lightened(icon.get());
  ICONINFO parts = {};
  ASSERT_TRUE(GetIconInfo(light.get(), &parts));
  DWORD drawn[kPixels] = {};
  GetBitmapBits(parts.hbmColor, sizeof drawn, drawn);
  DeleteObject(parts.hbmColor);
  DeleteObject(parts.hbmMask);
  EXPECT_EQ(drawn[0], picture[0]) << "what is bright enough stays";
  EXPECT_EQ(drawn[1], picture[1]) << "what is not seen stays unseen";
  EXPECT_EQ(drawn[2], 0xFFC7CED7);
}

TEST_F(Appearance, AboutBoxCannotBeMinimized) {
  tell("menu mnuHelpAbout");
  const LONG style = GetWindowLongW(window("frmAbout"), GWL_STYLE);
  EXPECT_EQ(style & (WS_MINIMIZEBOX | WS_MAXIMIZEBOX | WS_THICKFRAME), 0);
  tell("close frmAbout");
}

}  // namespace
}  // namespace appearance
