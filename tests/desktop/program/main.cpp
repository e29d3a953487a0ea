#include <gtest/gtest.h>

#include <cstdio>

#include "desktop/program/program_test.h"

// The tests of the finished program, which is started for each of them; with a folder for pictures,
// these are taken instead:
//   tallyrex-program-tests PROGRAM HELPFILE [PICTURES]
int wmain(int count, wchar_t** arguments) {
  testing::InitGoogleTest(&count, arguments);
  if (count != 3 && count != 4) {
    std::fputs("tallyrex-program-tests PROGRAM HELPFILE [PICTURES]\n", stderr);
    return 2;
  }
  const bool takesPictures = count == 4;
  if (takesPictures) program::ProgramTest::setPictureFolder(arguments[3]);
  if (GTEST_FLAG_GET(filter) == "*")
    GTEST_FLAG_SET(filter, takesPictures ? "PicturesTest.*" : "-PicturesTest.*");
  program::TestedProgram tested(arguments[1], arguments[2]);
  program::ProgramTest::setProgram(tested);
  return RUN_ALL_TESTS();
}
