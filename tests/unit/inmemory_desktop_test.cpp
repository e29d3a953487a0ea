#include "inmemory/desktop.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace inmemory {
namespace {

constexpr controls::WindowLayout kLayout = {
    .name = "plain", .caption = "", .place = {0, 0, 900, 900}, .controls = {}};

class SystemDialogTest : public testing::Test {
 protected:
  SystemDialogTest() { window_->show(); }

  void showMessage() {
    desktop_.events().runEvent([this] {
      desktop_.showMessage({.text = "Note"});
      log_.push_back("answered");
    });
  }

  Desktop desktop_;
  std::unique_ptr<controls::Window> window_ = desktop_.createWindow(kLayout);
  std::unique_ptr<controls::Window> other_ = desktop_.createWindow(kLayout);
  std::vector<std::string> log_;
};

using Log = std::vector<std::string>;

TEST_F(SystemDialogTest, DisablesAllWindows) {
  bool enabled = true;
  desktop_.meanwhile.push_back([&] { enabled = window_->enabled() || other_->enabled(); });
  showMessage();
  EXPECT_FALSE(enabled);
  EXPECT_TRUE(window_->enabled());
}

TEST_F(SystemDialogTest, EndsItsHandlerWhenItsOwnerIsClosed) {
  window_->onClose = [this] { log_.push_back("closed"); };
  desktop_.meanwhile.push_back([this] { window_->requestClose(); });
  showMessage();
  EXPECT_EQ(log_, Log{"closed"});
  EXPECT_TRUE(window_->enabled());
}

TEST_F(SystemDialogTest, StaysOpenWhenAnotherWindowIsClosed) {
  other_->onClose = [this] { log_.push_back("closed"); };
  desktop_.meanwhile.push_back([this] { other_->requestClose(); });
  showMessage();
  EXPECT_EQ(log_, (Log{"closed", "answered"}));
}

TEST_F(SystemDialogTest, EndsItsHandlerWithTheSession) {
  desktop_.onEndSession = [this] { log_.push_back("end"); };
  desktop_.meanwhile.push_back([this] { desktop_.endSession(); });
  showMessage();
  EXPECT_EQ(log_, Log{"end"});
  EXPECT_EQ(desktop_.boxes.back().answer, controls::kNoAnswer);
}

TEST_F(SystemDialogTest, PostedTasksRunAfterADismissal) {
  window_->onClose = [this] { desktop_.events().post([this] { log_.push_back("destroyed"); }); };
  desktop_.meanwhile.push_back([this] { window_->requestClose(); });
  showMessage();
  EXPECT_EQ(log_, Log{"destroyed"});
}

}  // namespace
}  // namespace inmemory
