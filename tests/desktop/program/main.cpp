#include <gtest/gtest.h>

#include <cstdio>

#include "desktop/program/program_test.h"
#include "desktop/program/replaced_notepad.h"
#include "support/retries.h"
#include "support/taken_desktop.h"

// The tests of the finished program, which is started for each of them:
//   tallyrex-program-tests PROGRAM HELPFILE
int wmain(int count, wchar_t** arguments) {
  testing::InitGoogleTest(&count, arguments);
  if (count != 3) {
    std::fputs("tallyrex-program-tests PROGRAM HELPFILE\n", stderr);
    return 2;
  }
  return support::withDesktop([arguments] {
    program::putBackNotepad();
    program::TestedProgram tested(arguments[1], arguments[2]);
    program::ProgramTest::setProgram(tested);
    const int result = RUN_ALL_TESTS();
    return support::retriesAreFew() ? result : 1;
  });
}
