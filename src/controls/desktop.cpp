#include "controls/desktop.h"

#include <algorithm>

namespace controls {

SystemDialog::SystemDialog(Desktop& desktop) : desktop_(desktop), owner_(desktop.activeWindow()) {
  desktop_.dialogs_.push_back(this);
  // The system itself disables the window that owns the dialog.
  desktop_.showWhoTakesInput(owner_);
}

SystemDialog::~SystemDialog() {
  std::erase(desktop_.dialogs_, this);
  desktop_.showWhoTakesInput(nullptr);
  // A window that came to the front meanwhile could not take the keyboard until now.
  if (desktop_.activeWindow_ != owner_) desktop_.bringActiveToFront();
}

void SystemDialog::noteAnswered() const {
  if (dismissed_) throw DialogDismissed();
}

bool Desktop::takesInput(const Window& window) const {
  return dialogs_.empty() && (!modal_ || modal_ == &window);
}

void Desktop::noteInFront(Window& window) {
  std::erase(windows_, &window);
  windows_.push_back(&window);
}

void Desktop::noteGone(Window& window) {
  std::erase(windows_, &window);
  if (activeWindow_ == &window) activeWindow_ = nullptr;
  if (modal_ == &window) modal_ = nullptr;
  for (SystemDialog* dialog : dialogs_)
    if (dialog->owner_ == &window) dialog->owner_ = nullptr;
}

Window* Desktop::frontWindow() const {
  const auto found = std::find_if(windows_.rbegin(), windows_.rend(),
                                  [](const Window* window) { return window->visible(); });
  return found == windows_.rend() ? nullptr : *found;
}

void Desktop::setModal(Window* window) {
  modal_ = window;
  showWhoTakesInput(nullptr);
}

void Desktop::bringActiveToFront() {
  if (activeWindow_) activeWindow_->bringToFront();
}

void Desktop::showWhoTakesInput(const Window* except) {
  for (Window* window : windows_)
    if (window != except) window->showEnabled();
}

void Desktop::dismissDialogsOver(Window& window) {
  if (modal_ && modal_ != &window) modal_->requestClose();
  dismissDialogs([&window](const SystemDialog& dialog) { return dialog.owner_ == &window; });
}

template <class IsMeant>
void Desktop::dismissDialogs(IsMeant isMeant) {
  bool any = false;
  for (SystemDialog* dialog : dialogs_) {
    if (!isMeant(*dialog)) continue;
    any = dialog->dismissed_ = true;
  }
  if (any) dismissSystemDialogs();
}

void Desktop::endSession() {
  raise(onEndSession);
  dismissDialogs([](const SystemDialog&) { return true; });
}

}  // namespace controls
