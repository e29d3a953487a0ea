#include "app/application.h"

namespace app {

void Application::start() {
  showMainWindow();
}

void Application::loadCalc() {
  shell::Program& program = *this;
  if (!calc_) calc_ = std::make_unique<shell::frmCalc>(desktop_, globals_, program);
}

controls::Window* Application::findWindow(std::string_view name) const {
  if (name == "frmCalc" && calc_) return &calc_->window();
  if (name == "frmAnnuity" && annuity_) return &annuity_->window();
  if (name == "frmAbout" && about_) return &about_->window();
  return nullptr;
}

// One that is open goes first, so that it opens afresh in the configuration requested.
void Application::openFinancialCalc(common::AnnuityKind kind) {
  if (annuity_) annuity_->unload();
  annuity::Program& program = *this;
  annuity_ = std::make_unique<annuity::frmAnnuity>(desktop_, program);
  annuity_->load(kind);
  annuity_->show();
}

// The box is modal: the other windows take no input while it is open.
void Application::showAbout(std::function<void()> closed) {
  about_ =
      std::make_unique<about::frmAbout>(desktop_, about::programVersion(),
                                        [this, closed = std::move(closed)] { closeAbout(closed); });
  enableOtherWindows(false);
  about_->window().show();
}

void Application::enableOtherWindows(bool enabled) {
  calc_->window().setEnabled(enabled);
  if (annuity_) annuity_->window().setEnabled(enabled);
}

void Application::closeAbout(const std::function<void()>& closed) {
  enableOtherWindows(true);
  about_->window().hide();
  closed();
  desktop_.events().post([this] { about_.reset(); });
}

// A window is destroyed when the handler that closes it has ended.
void Application::unloadCalc() {
  calc_->window().hide();
  desktop_.events().post([this] {
    calc_.reset();
    endWithLastWindow();
  });
}

controls::Rect Application::mainWindowPlace() const {
  return calc_->window().bounds();
}

controls::Color Application::focusColor() const {
  return controls::Color::rgb(globals_.glngTextBackColor);
}

void Application::showMainWindow() {
  loadCalc();
  calc_->show();
}

void Application::printToTape(const std::string& lines, controls::Twips width) {
  loadCalc();
  calc_->printLines(lines);
  calc_->window().setWidth(width);
}

void Application::unloadAnnuity() {
  annuity_->window().hide();
  std::shared_ptr<annuity::frmAnnuity> gone = std::move(annuity_);
  desktop_.events().post([this, gone = std::move(gone)]() mutable {
    gone.reset();
    endWithLastWindow();
  });
}

// A main window that was loaded for a print but never shown does not keep the program running.
void Application::endWithLastWindow() {
  const bool calcShown = calc_ && calc_->window().visible();
  if (calcShown || annuity_ || about_) return;
  calc_.reset();
  if (onEnded) onEnded();
}

}  // namespace app
