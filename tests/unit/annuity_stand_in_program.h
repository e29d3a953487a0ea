#pragma once

#include <string>

#include "annuity/frm_annuity.h"

namespace annuity {

/// A program whose main window is up, and keeps what is printed on its tape.
class StandInProgram : public Program {
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

}  // namespace annuity
