#include <gtest/gtest.h>

#include "support/taken_desktop.h"

int main(int count, char** arguments) {
  testing::InitGoogleTest(&count, arguments);
  return support::withDesktop([] { return RUN_ALL_TESTS(); });
}
