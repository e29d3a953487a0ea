#include "desktop/desktop_test.h"

#include "driver/native_handles.h"

namespace desktop {

driver::NativeStage* DesktopTest::stage_ = nullptr;

void DesktopTest::SetUp() {
  stage().clearSettings();
  tell("start");
  tell("menu mnuWinMode(0)");
  tell("events");
}

void DesktopTest::TearDown() {
  if (stage().running()) tell("close frmCalc");
}

driver::Json DesktopTest::tell(const std::string& command) {
  driver::Driver driver(stage());
  const auto answer = driver::Json::parse(driver.answer(command));
  EXPECT_FALSE(answer.contains("error")) << command << ": " << answer;
  return answer;
}

HWND DesktopTest::window(const std::string& name) {
  HWND handle = nullptr;
  stage().inspect([&] { handle = driver::handleOf(*stage().findWindow(name)); });
  return handle;
}

HWND DesktopTest::control(const std::string& window, const std::string& name) {
  HWND handle = nullptr;
  stage().inspect([&] { handle = driver::handleOf(stage().findWindow(window)->control(name)); });
  return handle;
}

}  // namespace desktop
