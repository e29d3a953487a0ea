#include "engine/amount.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "common/number_text.h"

namespace {

TEST(Amount, IsShowableIfItsFifteenDigitsCanBeReadAgain) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const double largest = 1.797693134862315e308;
  const double beyond = std::nextafter(largest, kInfinity);
  EXPECT_TRUE(common::tryNumber(common::toText(largest)));
  EXPECT_FALSE(common::tryNumber(common::toText(beyond)));
  for (const double sign : {1.0, -1.0}) {
    EXPECT_TRUE(engine::isShowable(sign * largest));
    EXPECT_FALSE(engine::isShowable(sign * beyond));
    EXPECT_FALSE(engine::isShowable(sign * kInfinity));
  }
  EXPECT_FALSE(engine::isShowable(std::numeric_limits<double>::quiet_NaN()));
}

}  // namespace
