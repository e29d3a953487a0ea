#include "driver/native_desktop.h"

#include <algorithm>
#include <iterator>

#include "driver/native_launches.h"
#include "driver/native_settings.h"

namespace driver {

NativeDesktop::NativeDesktop(NativeBoxes& boxes) : boxes_(boxes), settings_("") {
  setProgramName("Tallyrex");
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
  ++happenings_.beeps;
  win32::Desktop::beep();
}

bool NativeDesktop::startProgram(const std::string& program) {
  const std::vector<HWND> before = windowsOfOthers();
  if (!win32::Desktop::startProgram(program)) return false;
  std::ranges::copy(windowsSince(before), std::back_inserter(launched_));
  happenings_.launches.push_back({program, ""});
  return true;
}

// The keys count when what they paste has come to the other window.
bool NativeDesktop::startProgramAndPaste(const std::string& program) {
  const std::vector<HWND> before = windowsOfOthers();
  if (!win32::Desktop::startProgramAndPaste(program)) return false;
  bool pasted = false;
  for (HWND window : windowsSince(before)) {
    launched_.push_back(window);
    pasted = pasted || waitForText(window);
  }
  happenings_.launches.push_back({program, pasted ? "^V" : ""});
  return true;
}

void NativeDesktop::showHelp(const controls::HelpRequest& request) {
  happenings_.helpRequests.push_back(request);
}

void NativeDesktop::closeLaunched() {
  for (HWND window : std::exchange(launched_, {})) closeUnsaved(window);
}

}  // namespace driver
