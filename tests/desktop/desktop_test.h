#pragma once

#include <gtest/gtest.h>

#include <string>

#include "driver/driver.h"
#include "driver/native_stage.h"

namespace desktop {

/// The program in its real windows, freshly started in the mode of the adding machine, and the
/// hands of the person in front of it.
class DesktopTest : public testing::Test {
 public:
  /// The stage that all tests share, since it belongs to the program's thread.
  static void setStage(driver::NativeStage& stage) { stage_ = &stage; }

 protected:
  void SetUp() override;
  void TearDown() override;

  driver::NativeStage& stage() { return *stage_; }
  /// Carries out one command of the driver, which must not fail, and gives its answer.
  driver::Json tell(const std::string& command);
  std::string entry() { return tell("snapshot")["entry"]; }
  std::string tape() { return tell("snapshot")["tape"]; }

 private:
  static driver::NativeStage* stage_;
};

}  // namespace desktop
