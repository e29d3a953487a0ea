#include <gtest/gtest.h>

#include <thread>

#include "desktop/desktop_test.h"
#include "support/retries.h"
#include "support/taken_desktop.h"

namespace {

// The program runs on the main thread, as usual; the tests act as its user on another.
int runTests() {
  driver::NativeStage stage;
  desktop::DesktopTest::setStage(stage);
  int result = 1;
  std::thread person([&] {
    result = RUN_ALL_TESTS();
    if (!support::retriesAreFew()) result = 1;
    stage.end();
  });
  stage.run();
  person.join();
  return result;
}

}  // namespace

int main(int count, char** arguments) {
  testing::InitGoogleTest(&count, arguments);
  return support::withDesktop(runTests);
}
