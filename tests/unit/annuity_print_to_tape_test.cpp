#include <gtest/gtest.h>

#include "annuity_stand_in_program.h"
#include "inmemory/button.h"
#include "inmemory/desktop.h"

namespace annuity {
namespace {

TEST(PrintToTape, IsConfirmedOnItsButton) {
  inmemory::Desktop desktop;
  StandInProgram program;
  frmAnnuity calculator(desktop, program);
  calculator.load(common::AnnuityKind::Loan);
  calculator.show();
  auto& button = dynamic_cast<inmemory::Button&>(calculator.window().button("cmdPrintToTape"));
  button.setVisible(true);
  EXPECT_EQ(button.confirmed, "");
  button.click();
  EXPECT_EQ(button.confirmed, "Sent to the tape");
  EXPECT_TRUE(program.printed.starts_with("\r\nAnnuity Calculation:"));
}

}  // namespace
}  // namespace annuity
