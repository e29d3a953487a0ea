#include "driver/native_desktop.h"

#include <algorithm>
#include <iterator>

#include "driver/native_launches.h"
#include "driver/native_settings.h"

namespace driver {

NativeDesktop::NativeDesktop(NativeBoxes& boxes) : boxes_(boxes), settings_("") {
  setProgramName("Tallyrex");
  loseTape();
}

void NativeDesktop::setProgramName(const std::string& name) {
  name_ = name;
  settings_ = win32::RegistrySettings(storedKey(name));
}

int NativeDesktop::showMessage(const controls::UserMessage& box) {
  const int answer = win32::Desktop::showMessage(box);
  boxes_.noteAnswer(answer);
  return answer;
}

void NativeDesktop::beep() {
  ++events_.beeps;
  win32::Desktop::beep();
}

bool NativeDesktop::startProgram(const std::string& program) {
  const std::vector<HWND> before = windowsOfStarted();
  if (!win32::Desktop::startProgram(program)) return false;
  std::ranges::copy(windowsSince(before), std::back_inserter(launched_));
  events_.launches.push_back({program, "", {}});
  return true;
}

// The keys are recorded once the pasted text has arrived in the other window.
bool NativeDesktop::startProgramAndPaste(const std::string& program) {
  const std::vector<HWND> before = windowsOfStarted();
  starting_ = true;
  const bool started = win32::Desktop::startProgramAndPaste(program);
  if (!started) {
    starting_ = false;
    return false;
  }
  bool pasted = false;
  for (HWND window : windowsSince(before)) {
    launched_.push_back(window);
    pasted = pasted || waitForText(window);
  }
  events_.launches.push_back({program, pasted ? "^V" : "", {}});
  starting_ = false;
  return true;
}

// The text is recorded once it has arrived in the window of the started program.
bool NativeDesktop::openText(const std::string& program, std::string_view text) {
  const std::vector<HWND> before = windowsOfStarted();
  if (!win32::Desktop::openText(program, text)) return false;
  const HWND window = waitForWindowSince(before);
  if (window) launched_.push_back(window);
  events_.launches.push_back({program, "", textShownIn(window)});
  return true;
}

void NativeDesktop::showHelp(const controls::HelpRequest& request) {
  events_.helpRequests.push_back(request);
}

void NativeDesktop::loseTape() {
  tapeSafe_.emplace(win32::tapeFolder("TallyrexDriver"));
}

void NativeDesktop::clearTapes() {
  tapeSafe_->lostTapes();
  tapeSafe_->forgetLostTapes();
}

bool NativeDesktop::closeLaunched() {
  const auto windows = std::exchange(launched_, {});
  for (HWND window : windows) closeUnsaved(window);
  return !windows.empty();
}

}  // namespace driver
