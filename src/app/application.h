#pragma once

#include <functional>
#include <memory>

#include "about/frm_about.h"
#include "annuity/frm_annuity.h"
#include "controls/desktop.h"
#include "shell/frm_calc.h"

namespace app {

/// The application: it owns its windows, knows which are loaded, and ends with the last visible
/// one.
class Application : private shell::Program, private annuity::Program {
 public:
  explicit Application(controls::Desktop& desktop);
  ~Application() override;
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  /// The last window has closed.
  std::function<void()> onEnded;

  /// Shows the main window, then offers the tape of a run that did not end normally.
  void start(controls::WindowState state = controls::WindowState::Normal);
  bool ended() const { return !calc_ && !annuity_ && !about_; }
  /// The window of that name; null if it is not loaded.
  controls::Window* findWindow(std::string_view name) const;

 private:
  void openFinancialCalc(common::AnnuityKind kind) override;
  void showAbout(std::function<void()> closed) override;
  void unloadCalc() override;

  controls::Rect mainWindowPlace() const override;
  bool mainWindowIsUp() const override { return calc_ && calc_->isUp(); }
  controls::Color focusColor() const override { return focusColor_; }
  void setFocusColor(controls::Color color) override { focusColor_ = color; }
  std::string helpFile() const override { return helpFile_; }
  void showMainWindow() override;
  void printToTape(const std::string& lines, controls::Twips width) override;
  void unloadAnnuity() override;

  void loadCalc();
  void offerLostTapes();
  template <class Form>
  void unload(std::unique_ptr<Form>& form);
  void endSession();
  void endWithLastWindow();

  controls::Desktop& desktop_;
  controls::Color focusColor_ = shell::kDefaultFocusColor;
  /// Determined when the main window is loaded.
  std::string helpFile_;
  std::unique_ptr<shell::frmCalc> calc_;
  std::unique_ptr<annuity::frmAnnuity> annuity_;
  std::unique_ptr<about::frmAbout> about_;
};

}  // namespace app
