#include "desktop/program/program_test.h"

namespace program {
namespace {

class StartTest : public ProgramTest {};

TEST_F(StartTest, AddsAColumnOfFigures) {
  start();
  chooseFromMenu('W', "OA");
  type("12+3+5-=");
  expectText(program().tape(), L"Top\r\n12.00 + \r\n3.00 + \r\n5.00 - \r\n10.00 * \r\n");
  expectText(program().entry(), L"10");
  close();
}

}  // namespace
}  // namespace program
