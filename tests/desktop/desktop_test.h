#pragma once

#include <gtest/gtest.h>

#include <string>

#include "driver/driver.h"
#include "driver/native_stage.h"

namespace desktop {

/// The program in its real windows, started again in add mode for each test, and the input of its
/// user.
class DesktopTest : public testing::Test {
 public:
  /// The stage is shared by all tests, since it belongs to the program's thread.
  static void setStage(driver::NativeStage& stage) { stage_ = &stage; }

 protected:
  void SetUp() override;
  void TearDown() override;

  driver::NativeStage& stage() { return *stage_; }
  /// Carries out a driver command, which must not fail, and returns its answer.
  driver::Json tell(const std::string& command);
  HWND window(const std::string& name);
  HWND control(const std::string& window, const std::string& name);
  std::string entry() { return tell("snapshot")["entry"]; }
  std::string tape() { return tell("snapshot")["tape"]; }

 private:
  static driver::NativeStage* stage_;
};

}  // namespace desktop
