#include <algorithm>
#include <vector>

#include "appearance/appearance_test_base.h"
#include "win32/text.h"

// An entry that is too wide for its box is drawn narrower, so that all of it is visible.
namespace appearance {
namespace {

using Pixels = std::vector<COLORREF>;

class FittedText : public AppearanceTest, public testing::WithParamInterface<int> {
 protected:
  void SetUp() override {
    AppearanceTest::SetUp();
    setResolution(window("frmCalc"), GetParam());
    entry_ = control("frmCalc", "txtEntry");
  }

  void show(const std::string& text) {
    stage().inspect([&] { stage().findWindow("frmCalc")->textBox("txtEntry").setText(text); });
  }

  /// The part of the box that is visible in the window.
  RECT seenPlace() const {
    RECT box = placeOf(entry_);
    MapWindowPoints(nullptr, GetParent(entry_), reinterpret_cast<POINT*>(&box), 2);
    box.right = std::min(box.right, clientSize(GetParent(entry_)).cx);
    return box;
  }

  /// A picture of the visible part of the box, without the caret.
  Pixels picture() {
    Pixels picture;
    stage().inspect([&] {
      HideCaret(entry_);
      RedrawWindow(entry_, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
      const RECT seen = seenPlace();
      const HDC screen = GetDC(GetParent(entry_));
      for (LONG y = seen.top; y < seen.bottom; ++y)
        for (LONG x = seen.left; x < seen.right; ++x) picture.push_back(GetPixel(screen, x, y));
      ReleaseDC(GetParent(entry_), screen);
      ShowCaret(entry_);
    });
    return picture;
  }

  Pixels pictureOf(const std::string& text) {
    show(text);
    return picture();
  }

  /// The left edge of a character, from the left edge of the box.
  LONG placeOfCharacter(std::size_t index) const {
    return static_cast<short>(LOWORD(SendMessageW(entry_, EM_POSFROMCHAR, index, 0)));
  }

  void expectWhole(const std::string& text) {
    SCOPED_TRACE(text);
    const Pixels whole = pictureOf(text);
    EXPECT_GE(placeOfCharacter(0), 0);
    const LONG end = placeOfCharacter(0) + sizeOf(entry_, win32::wide(text)).cx;
    EXPECT_LE(end, clientSize(entry_).cx);
    POINT corner = {0, 0};
    MapWindowPoints(entry_, GetParent(entry_), &corner, 1);
    EXPECT_LE(corner.x + end, clientSize(GetParent(entry_)).cx);
    for (std::size_t i = 0; i < text.size(); ++i) {
      std::string without = text;
      without[i] = ' ';
      EXPECT_NE(pictureOf(without), whole) << "character " << i << " is not seen";
    }
  }

  HWND entry_ = nullptr;
};

TEST_P(FittedText, IsFullyVisibleInTheMainWindow) {
  for (const char* text : {"-999,999,999,999.99", "-9,999,999,999,999.90", "-123,456,789,012,345",
                           "-123,456,789,012,345.6789"})
    expectWhole(text);
}

TEST_P(FittedText, IsFullyVisibleInTheMicroWindow) {
  tell("menu mnuWinMicroWindow");
  for (const char* text : {"-999,999,999,999.99", "-9,999,999,999,999.90", "-123,456,789,012,345"})
    expectWhole(text);
}

TEST_P(FittedText, AdaptsToTheWidthOfTheWindow) {
  tell("menu mnuWinMode(0)");
  tell("press Ctrl+D");
  tell("type \"999999999999999n+\"");
  ASSERT_EQ(entry(), "-9,999,999,999,999.99");
  expectWhole(entry());
  tell("menu mnuWinMicroWindow");
  expectWhole("-9,999,999,999,999.99");
  tell("menu mnuWinMicroWindow");
  expectWhole("-9,999,999,999,999.99");
}

TEST_P(FittedText, ShortTextsKeepTheDesignedFont) {
  const LONG designed = fontOf(entry_).lfWidth;
  show("-999,999,999,999,999,999.00");
  EXPECT_LT(fontOf(entry_).lfWidth, designed);
  EXPECT_EQ(fontOf(entry_).lfHeight, fontOf(control("frmCalc", "txtDec")).lfHeight);
  show("888,888,888,888,888");
  EXPECT_EQ(fontOf(entry_).lfWidth, designed);
}

TEST_P(FittedText, AdaptsWhileItIsTyped) {
  tell("menu mnuWinMicroWindow");
  tell("type \"-\"");
  tell("roll \"12345678901234567\"");
  expectWhole(entry());
}

INSTANTIATE_TEST_SUITE_P(Resolutions, FittedText, testing::ValuesIn(kResolutions),
                         [](const auto& test) { return std::to_string(test.param * 100 / 96); });

}  // namespace
}  // namespace appearance
