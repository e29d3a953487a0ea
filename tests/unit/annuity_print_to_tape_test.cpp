#include <gtest/gtest.h>

#include <string>

#include "annuity/frm_annuity.h"
#include "inmemory/button.h"
#include "inmemory/desktop.h"

namespace annuity {
namespace {

/// A program whose main window is there, and keeps what is printed on its tape.
class MainWindow : public Program {
 public:
  controls::Rect mainWindowPlace() const override { return {}; }
  bool mainWindowIsUp() const override { return true; }
  controls::Color focusColor() const override { return controls::Color::window(); }
  std::string helpFile() const override { return ""; }
  void showMainWindow() override {}
  void printToTape(const std::string& lines, controls::Twips) override { printed += lines; }
  void unloadAnnuity() override {}

  std::string printed;
};

TEST(PrintToTape, IsConfirmedOnItsButton) {
  inmemory::Desktop desktop;
  MainWindow program;
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
