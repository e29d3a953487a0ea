#include "support/retries.h"

#include <gtest/gtest.h>

namespace support {
namespace {

TEST(Retries, LongRunMayHaveTheShareOfAShortOne) {
  EXPECT_EQ(mostRetries(0), 80);
  EXPECT_EQ(mostRetries(8099), 80);
  EXPECT_EQ(mostRetries(8100), 81);
  EXPECT_EQ(mostRetries(100000), 1000);
}

}  // namespace
}  // namespace support
