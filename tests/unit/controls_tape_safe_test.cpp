#include "controls/tape_safe.h"

#include <gtest/gtest.h>

#include <string>

#include "inmemory/tape_safe.h"

namespace controls {
namespace {

std::string lost(inmemory::TapeSafe& safe) {
  safe.lose();
  return safe.lostTapes();
}

TEST(TapeSafe, StoresNothingForATapeWithOnlyItsHeader) {
  inmemory::TapeSafe safe;
  safe.record({.inserted = "Top"});
  safe.record({.removed = 3, .inserted = "Top                    Top"});
  EXPECT_EQ(safe.size(), 0u);
  EXPECT_EQ(lost(safe), "");
}

TEST(TapeSafe, StoresTheHeaderWithTheFirstLine) {
  inmemory::TapeSafe safe;
  safe.record({.inserted = "Top"});
  safe.record({.start = 3, .inserted = "\r\n1.00 + "});
  EXPECT_EQ(lost(safe), "Top\r\n1.00 + ");
}

TEST(TapeSafe, StoresATapeThatBeginsWithALine) {
  inmemory::TapeSafe safe;
  safe.record({.inserted = "Top\n1.00 + "});
  EXPECT_EQ(lost(safe), "Top\n1.00 + ");
  safe.record({.inserted = "Top\r"});
  EXPECT_EQ(safe.size(), 0u);
}

TEST(TapeSafe, StoresANoteInTheHeader) {
  inmemory::TapeSafe safe;
  safe.record({.inserted = "Top"});
  safe.record({.start = 3, .inserted = "!"});
  EXPECT_EQ(lost(safe), "Top!");
}

TEST(TapeSafe, ReplacingTheWholeTapeStartsOver) {
  inmemory::TapeSafe safe;
  safe.record({.inserted = "Top"});
  safe.record({.start = 3, .inserted = "\r\n1.00 + "});
  safe.record({.removed = 12, .inserted = ""});
  EXPECT_EQ(safe.size(), 0u);
  // As when the user undoes that.
  safe.record({.inserted = "Top\r\n1.00 + "});
  safe.record({.start = 12, .inserted = "\r\n2.00 + "});
  EXPECT_EQ(lost(safe), "Top\r\n1.00 + \r\n2.00 + ");
}

TEST(TapeSafe, ReturnsTheOlderRunFirstAndForgetsBoth) {
  inmemory::TapeSafe safe;
  for (const std::string line : {"\r\n1.00 + ", "\r\n2.00 + "}) {
    safe.record({.inserted = "Top"});
    safe.record({.start = 3, .inserted = line});
    safe.lose();
  }
  EXPECT_EQ(safe.lostTapes(), "Top\r\n1.00 + \r\n\r\nTop\r\n2.00 + ");
  safe.forgetLostTapes();
  EXPECT_EQ(safe.lostTapes(), "");
}

class DamagedSafe : public inmemory::TapeSafe {
 protected:
  std::vector<std::string> lostRecords() override {
    return {"damaged", common::editRecord({.inserted = "Top"}), "damaged"};
  }
};

TEST(TapeSafe, LeavesOutWhatCannotBeReplayed) {
  EXPECT_EQ(DamagedSafe().lostTapes(), "Top");
}

// A line, or an edit in the middle, takes the same space on a tape of any length.
TEST(TapeSafe, CostOfAnEditDoesNotGrowWithTheTape) {
  inmemory::TapeSafe safe;
  safe.record({.inserted = "Top"});
  const std::string line = "\r\n123.45 + ";
  int length = 3;
  std::size_t cost = 0;
  for (int i = 0; i < 1'000'000; ++i) {
    const std::size_t before = safe.size();
    safe.record({.start = length, .inserted = line});
    length += static_cast<int>(line.size());
    if (i == 1) cost = safe.size() - before;
    if (i > 1) {
      ASSERT_EQ(safe.size() - before, cost);
    }
  }
  const std::size_t before = safe.size();
  safe.record({.start = 7, .removed = 2, .inserted = "67"});
  EXPECT_LT(safe.size() - before, cost);
  EXPECT_EQ(lost(safe).size(), static_cast<std::size_t>(length));
}

}  // namespace
}  // namespace controls
