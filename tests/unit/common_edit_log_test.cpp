#include "common/edit_log.h"

#include <gtest/gtest.h>

#include <string>

namespace common {
namespace {

std::string exampleLog() {
  return editRecord({.inserted = "Top"}) + editRecord({.start = 3, .inserted = "\r\n12.00 + "}) +
         editRecord({.start = 5, .removed = 2, .inserted = "5 \xE2\x82\xAC \xF0\x9F\x93\x88"}) +
         editRecord({.start = 17, .inserted = "\r\nend"});
}

constexpr char kExample[] = "Top\r\n5 \xE2\x82\xAC \xF0\x9F\x93\x88.00 + \r\nend";

TEST(EditLog, ReplaysTheEdits) {
  EXPECT_EQ(replayEdits(""), "");
  EXPECT_EQ(replayEdits(editRecord({.inserted = "Top"})), "Top");
  EXPECT_EQ(replayEdits(editRecord({.inserted = "Top"}) + editRecord({.removed = 3})), "");
  // The character outside the basic plane counts as two.
  std::string log = exampleLog();
  EXPECT_EQ(replayEdits(log), kExample);
}

// A tape may be offered by a later version than the one that kept it.
TEST(EditLog, RecordsKeepTheirForm) {
  constexpr char kRecords[] =
      "\0\0\0\0\0\0\0\0\3\0\0\0\xAD\xC5\x3F\xF2Top"
      "\1\0\0\0\2\0\0\0\3\0\0\0\x3D\xA7\x1E\x22"
      "ape";
  EXPECT_EQ(
      editRecord({.inserted = "Top"}) + editRecord({.start = 1, .removed = 2, .inserted = "ape"}),
      std::string(kRecords, sizeof kRecords - 1));
}

TEST(EditLog, TruncatedLogEndsWithItsLastCompleteRecord) {
  const std::string log = exampleLog();
  const std::string last = editRecord({.start = 17, .inserted = "\r\nend"});
  const std::string text = kExample;
  const std::string before = text.substr(0, text.size() - 5);
  for (std::size_t cut = 1; cut <= last.size(); ++cut)
    EXPECT_EQ(replayEdits(log.substr(0, log.size() - cut)), before) << cut;
}

TEST(EditLog, TrailingGarbageIsIgnored) {
  const std::string log = exampleLog();
  for (const std::size_t size : {1u, 15u, 16u, 17u, 4096u}) {
    EXPECT_EQ(replayEdits(log + std::string(size, '\0')), kExample) << size;
    EXPECT_EQ(replayEdits(log + std::string(size, '\xFF')), kExample) << size;
  }
  EXPECT_EQ(replayEdits("what is no log at all"), "");
}

TEST(EditLog, DamagedRecordIsNotReplayed) {
  std::string log = exampleLog();
  log[log.size() - 1] = 'E';
  EXPECT_NE(replayEdits(log).find(".00 + "), std::string::npos);
  EXPECT_EQ(replayEdits(log).find("en"), std::string::npos);
}

TEST(EditLog, EditBeyondTheTextIsNotReplayed) {
  const std::string top = editRecord({.inserted = "Top"});
  EXPECT_EQ(replayEdits(top + editRecord({.start = 4, .inserted = "x"})), "Top");
  EXPECT_EQ(replayEdits(top + editRecord({.start = 1, .removed = 3})), "Top");
  EXPECT_EQ(replayEdits(top + editRecord({.start = -1, .inserted = "x"})), "Top");
}

}  // namespace
}  // namespace common
