#include "controls/event_loop.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace controls {
namespace {

class EventLoopTest : public testing::Test {
 protected:
  std::function<void()> note(char what) {
    return [this, what] { log_ += what; };
  }

  EventLoop loop_;
  std::string log_;
};

TEST_F(EventLoopTest, WhatAHandlerPostsRunsWhenTheOutermostEventHasEnded) {
  loop_.runEvent([this] {
    loop_.runEvent([this] { loop_.post(note('2')); });
    log_ += '1';
  });
  EXPECT_EQ(log_, "12");
}

TEST_F(EventLoopTest, OutsideAnEventItRunsAtOnce) {
  loop_.post(note('1'));
  EXPECT_EQ(log_, "1");
  loop_.postLast(note('2'));
  EXPECT_EQ(log_, "12");
}

TEST_F(EventLoopTest, WhatIsPostedLastRunsBehindAllElse) {
  loop_.runEvent([this] {
    loop_.postLast([this] {
      log_ += '3';
      loop_.post(note('4'));
    });
    loop_.post([this] {
      log_ += '1';
      loop_.post(note('2'));
    });
  });
  EXPECT_EQ(log_, "1234");
}

TEST_F(EventLoopTest, WhileAHandlerWaitsOtherEventsEndAsIfThereWereNone) {
  loop_.runEvent([this] {
    loop_.takeWhileWaiting([this] { loop_.runEvent([this] { loop_.post(note('1')); }); });
    log_ += '2';
  });
  EXPECT_EQ(log_, "12");
}

TEST_F(EventLoopTest, WhatItStillNeedsStaysUntilItHasEnded) {
  loop_.runEvent([this] {
    loop_.takeWhileWaiting([this] { loop_.runEvent([this] { loop_.postLast(note('2')); }); });
    log_ += '1';
  });
  EXPECT_EQ(log_, "12");
}

TEST_F(EventLoopTest, AnErrorWhileItWaitsLeavesTheOrderAsItWas) {
  try {
    loop_.runEvent(
        [this] { loop_.takeWhileWaiting([] { throw std::runtime_error("while waiting"); }); });
  } catch (const std::runtime_error&) {
    log_ += '1';
  }
  loop_.runEvent([this] {
    loop_.post(note('3'));
    log_ += '2';
  });
  EXPECT_EQ(log_, "123");
}

}  // namespace
}  // namespace controls
