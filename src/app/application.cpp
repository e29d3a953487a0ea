#include "app/application.h"

namespace app {

void Application::start() {
  shell::Program& program = *this;
  calc_ = std::make_unique<shell::frmCalc>(desktop_, globals_, program);
  calc_->show();
}

controls::Window* Application::findWindow(std::string_view name) const {
  if (name == "frmCalc" && calc_) return &calc_->window();
  if (name == "frmAbout" && about_) return &about_->window();
  return nullptr;
}

void Application::openFinancialCalc() {}

// The box is modal: the main window takes no input while it is open.
void Application::showAbout(std::function<void()> closed) {
  about_ =
      std::make_unique<about::frmAbout>(desktop_, about::ProgramVersion{},
                                        [this, closed = std::move(closed)] { closeAbout(closed); });
  calc_->window().setEnabled(false);
  about_->window().show();
}

void Application::closeAbout(const std::function<void()>& closed) {
  calc_->window().setEnabled(true);
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

void Application::endWithLastWindow() {
  if (ended() && onEnded) onEnded();
}

}  // namespace app
