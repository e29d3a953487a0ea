#include "controls/geometry.h"

#include <gtest/gtest.h>

namespace controls {
namespace {

TEST(ClampedTwips, KeepsWhatAWindowCanHave) {
  EXPECT_EQ(clampedTwips(0), 0);
  EXPECT_EQ(clampedTwips(-60.4), -60);
  EXPECT_EQ(clampedTwips(1234.5), 1235);
  EXPECT_EQ(clampedTwips(491505), 491505);
  EXPECT_EQ(clampedTwips(491506), 491505);
  EXPECT_EQ(clampedTwips(-491505), -491505);
  EXPECT_EQ(clampedTwips(-1e300), -491505);
}

}  // namespace
}  // namespace controls
