#include "app/application.h"

#include "shell/help_file.h"

namespace app {

Application::Application(controls::Desktop& desktop) : desktop_(desktop) {
  desktop_.onEndSession = [this] { endSession(); };
}

Application::~Application() {
  desktop_.onEndSession = nullptr;
}

void Application::start(controls::WindowState state) {
  showMainWindow();
  calc_->window().setState(state);
  offerLostTapes();
}

// Offered at each start until the question is answered. Without Notepad, the tapes go to the
// clipboard.
void Application::offerLostTapes() {
  const std::string tapes = desktop_.tapeSafe().lostTapes();
  if (tapes.empty()) return;
  const int answer = desktop_.showMessage(
      {.text = "Tallyrex did not end normally the last time.  Its tape was kept.  Open it in "
               "Notepad?",
       .buttons = controls::Buttons::YesNo});
  if (answer == controls::kNoAnswer) return;
  if (answer == controls::kAnswerYes && !desktop_.openText("NotePad.exe", tapes)) {
    desktop_.setClipboardText(tapes);
    desktop_.showMessage({.text = "Error finding or displaying NotePad.exe"});
  }
  desktop_.tapeSafe().forgetLostTapes();
}

void Application::loadCalc() {
  if (calc_) return;
  helpFile_ = shell::findHelpFile(desktop_);
  shell::Program& program = *this;
  calc_ = std::make_unique<shell::frmCalc>(desktop_, program);
}

controls::Window* Application::findWindow(std::string_view name) const {
  if (name == "frmCalc" && calc_) return &calc_->window();
  if (name == "frmAnnuity" && annuity_) return &annuity_->window();
  if (name == "frmAbout" && about_) return &about_->window();
  return nullptr;
}

// One that is open closes first, so that the new one has the requested configuration.
void Application::openFinancialCalc(common::AnnuityKind kind) {
  // Another program may have closed the main window while its message was open.
  if (!calc_) return;
  if (annuity_) annuity_->unload();
  annuity::Program& program = *this;
  annuity_ = std::make_unique<annuity::frmAnnuity>(desktop_, program);
  annuity_->load(kind);
  // Another program may have closed it while its note was open.
  if (annuity_) annuity_->show();
}

void Application::showAbout(std::function<void()> closed) {
  about_ = std::make_unique<about::frmAbout>(desktop_, about::programVersion(), [this, closed] {
    unload(about_);
    closed();
  });
  about_->window().showModal();
}

void Application::unloadCalc() {
  desktop_.tapeSafe().clear();
  unload(calc_);
}

void Application::unloadAnnuity() {
  unload(annuity_);
}

// A window is destroyed when the event that closes it has ended.
template <class Form>
void Application::unload(std::unique_ptr<Form>& form) {
  if (!form) return;
  std::shared_ptr<Form> gone = std::move(form);
  gone->window().hide();
  desktop_.events().postLast([this, gone = std::move(gone)]() mutable {
    gone.reset();
    endWithLastWindow();
  });
}

// The About box closes first: the main window saves its state as without it.
void Application::endSession() {
  if (about_) about_->window().requestClose();
  if (annuity_) annuity_->unload();
  if (calc_) calc_->unload();
}

controls::Rect Application::mainWindowPlace() const {
  return calc_->window().bounds();
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

// A window that is loaded but not visible does not keep the program running.
void Application::endWithLastWindow() {
  const auto isShown = [](const auto& form) { return form && form->window().visible(); };
  if (isShown(calc_) || isShown(annuity_) || isShown(about_)) return;
  calc_.reset();
  annuity_.reset();
  desktop_.tapeSafe().clear();
  if (onEnded) onEnded();
}

}  // namespace app
