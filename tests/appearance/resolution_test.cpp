#include <vector>

#include "appearance/appearance_test_base.h"

// A window that is dragged to a monitor of another resolution, and back.
namespace appearance {
namespace {

/// The position of a control in its window, and its font.
struct Seen {
  RECT place;
  LOGFONTW font;
};

bool same(const RECT& one, const RECT& other) {
  return EqualRect(&one, &other);
}

class ResolutionTest : public AppearanceTest, public testing::WithParamInterface<const char*> {
 protected:
  void SetUp() override {
    AppearanceTest::SetUp();
    if (GetParam() != std::string("frmCalc")) tell("menu mnuWinFinCalcLoan");
    tell("move " + std::string(GetParam()) + " 1500 900");
    window_ = window(GetParam());
  }

  std::vector<Seen> look() {
    std::vector<Seen> seen;
    for (const HWND child : support::allChildren(window_)) {
      RECT place = placeOf(child);
      MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&place), 2);
      seen.push_back({place, fontOf(child)});
    }
    return seen;
  }

  HWND window_ = nullptr;
};

/// Within one pixel, because of rounding.
void expectScaled(LONG now, LONG before, const char* what) {
  EXPECT_NEAR(now, 1.5 * before, 1.0) << what << " was " << before;
}

TEST_P(ResolutionTest, SizesPositionsAndFontsAreScaled) {
  const std::vector<Seen> before = look();
  const SIZE sizeBefore = clientSize(window_);
  setResolution(window_, 144);
  const std::vector<Seen> after = look();
  expectScaled(clientSize(window_).cx, sizeBefore.cx, "width");
  expectScaled(clientSize(window_).cy, sizeBefore.cy, "height");
  ASSERT_EQ(after.size(), before.size());
  ASSERT_GT(before.size(), 20U);
  for (std::size_t i = 0; i < before.size(); ++i) {
    SCOPED_TRACE(i);
    expectScaled(after[i].place.left, before[i].place.left, "left");
    expectScaled(after[i].place.top, before[i].place.top, "top");
    expectScaled(after[i].place.right, before[i].place.right, "right");
    expectScaled(after[i].place.bottom, before[i].place.bottom, "bottom");
    expectScaled(after[i].font.lfHeight, before[i].font.lfHeight, "font");
    EXPECT_EQ(after[i].font.lfWeight, before[i].font.lfWeight);
    EXPECT_STREQ(after[i].font.lfFaceName, before[i].font.lfFaceName);
  }
}

TEST_P(ResolutionTest, EverythingIsRestoredExactly) {
  const std::vector<Seen> before = look();
  const RECT placeBefore = placeOf(window_);
  const auto left = tell("get " + std::string(GetParam()) + " Left");
  const auto width = tell("get " + std::string(GetParam()) + " Width");
  RECT elsewhere = placeBefore;
  OffsetRect(&elsewhere, 120, 60);
  setResolution(window_, 144, elsewhere);
  EXPECT_EQ(placeOf(window_).left, elsewhere.left);
  EXPECT_EQ(placeOf(window_).top, elsewhere.top);
  EXPECT_EQ(tell("get " + std::string(GetParam()) + " Width"), width);
  setResolution(window_, 96, placeBefore);
  EXPECT_TRUE(same(placeOf(window_), placeBefore));
  EXPECT_EQ(tell("get " + std::string(GetParam()) + " Left"), left);
  EXPECT_EQ(tell("get " + std::string(GetParam()) + " Width"), width);
  const std::vector<Seen> after = look();
  ASSERT_EQ(after.size(), before.size());
  for (std::size_t i = 0; i < before.size(); ++i) {
    SCOPED_TRACE(i);
    EXPECT_TRUE(same(after[i].place, before[i].place));
    EXPECT_EQ(after[i].font.lfHeight, before[i].font.lfHeight);
    EXPECT_EQ(after[i].font.lfWidth, before[i].font.lfWidth);
  }
}

INSTANTIATE_TEST_SUITE_P(Windows, ResolutionTest, testing::Values("frmCalc", "frmAnnuity"),
                         [](const auto& test) { return std::string(test.param); });

}  // namespace
}  // namespace appearance
